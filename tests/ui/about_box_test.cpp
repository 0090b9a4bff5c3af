// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "controls/rtf_reader.h"
#include "support/image.h"
#include "support/whole_kelvra.h"

namespace kelvra::ui {

class AboutBoxTest : public testing::Test, public test::WholeKelvra {
protected:
    AboutBoxTest() {
        fake.computer.programDate = platform::LocalTime{2005, 3, 7, 1, 2, 3, 0};
        fake.computer.version = {
            "Kelvra", 1, 0, 22, "Comments", "(C) 2005", {"home", "notes", "tool", "box@example"}};
    }

    void Put(const std::string& name, std::uint16_t major) {
        const std::string path = folder.Path(name);
        std::filesystem::create_directories(std::filesystem::path(path).parent_path());
        folder.Put(name, test::Image({major, 2, 3, 4}).bytes);
    }
    forms::AboutForm& Open() {
        if (!program) Start();
        program->forms.mdiMain.MHelpAbout.Press();
        return program->forms.aboutForm;
    }
    static std::string Seen(const controls::RichText& panel) {
        std::string text;
        for (const std::string& line : controls::RtfLines(panel.rtf.Get())) text += line + "\n";
        return text;
    }
};

TEST_F(AboutBoxTest, EveryItemIsInThePanelAndInThePlainText) {
    auto& computer = fake.computer;
    computer.windows = platform::WindowsVersion{platform::WindowsVersion::Family::Nt, 5, 0, 2195,
                                                "Service Pack 4"};
    computer.names = {{"sCountry", "Österreich"},
                      {"sLanguage", "DEU"},
                      {"Locale", "00000C07"},
                      {"", "C:\\Browser\\iexplore.exe"}};
    int version = 0;
    for (const char* file :
         {"System32/SICL32.DLL", "System32/cvirte.dll", "System32/msi.dll", "Browser/IExplore.exe",
          "System32/cwanalysis.ocx", "System32/cwui.ocx", "System32/cw3dgrph.ocx",
          "System32/visa32.dll", "System32/agvisa32.dll", "System32/HvxRemote.dll",
          "System32/nbcontrol.dll", "System32/teskcontrol2.dll", "System32/teskcontrol.dll"})
        Put(file, static_cast<std::uint16_t>(++version));
    const auto& form = Open();
    const std::string panel = Seen(form.SysInfoValue);
    const std::string& plain = program->windows.aboutBox.SupportText();
    EXPECT_EQ(panel.substr(0, panel.find("This computer\n")),
              "Operating system\nWindows 2000, Service Pack 4, build 2195\n\n"
              "Language settings\n Country            Österreich\n Language           DEU\n"
              " Local ID           00000C07\n\n"
              "General informations\n IEEE driver        1.2.3.4\n CVI runtime        2.2.3.4\n"
              " MSI service        3.2.3.4\n Internet Explorer  4.2.3.4\n\n"
              "NI ActiveX versions\n Analysis           5.2.3.4\n UI                 6.2.3.4\n"
              " 3D graph           7.2.3.4\n\n"
              "VISA versions\n VISA               8.2.3.4\n Secondary VISA     9.2.3.4\n"
              " HVXR               10.2.3.4\n\n"
              "Special files\n NB Control         11.2.3.4\n Tesk Control2      12.2.3.4\n"
              " Tesk Control       13.2.3.4\n\n");
    EXPECT_EQ(plain.substr(0, plain.find("Installed")),
              "Product:              Kelvra\r\nVersion:              1.0.22\r\n"
              "Date:                 3/7/2005\r\n"
              "Operating system:     Windows 2000, Service Pack 4, build 2195\r\n"
              "Country:              Österreich\r\nLanguage:             DEU\r\n"
              "Local ID:             00000C07\r\nIEEE driver version:  1.2.3.4\r\n"
              "CVI runtime version:  2.2.3.4\r\nMSI service:          3.2.3.4\r\n"
              "Internet Exp.:        4.2.3.4\r\nNI Analysis version:  5.2.3.4\r\n"
              "NI UI version:        6.2.3.4\r\nNI 3D graph version:  7.2.3.4\r\n"
              "NI VISA version:      8.2.3.4\r\nSecondary VISA version: 9.2.3.4\r\n"
              "HVXR version:         10.2.3.4\r\nNB Control version:   11.2.3.4\r\n"
              "Tesk Control2 version: 12.2.3.4\r\nTesk Control version: 13.2.3.4\r\n");
    // As it was when the box opened.
    Put("System32/GPIB-32.dll", 20);
    Open();
    EXPECT_EQ(Seen(form.SysInfoValue), panel);
    program->forms.aboutForm.Close.Press();
    EXPECT_NE(Seen(Open().SysInfoValue).find(" IEEE driver        20.2.3.4\n"), std::string::npos);
}

TEST_F(AboutBoxTest, WhatIsTrueHereFollowsWithWhatTheDriversLack) {
    fake.computer.libraries["psdrv_32"].erase("psdrv_init");
    fake.computer.libraries["psdrv_32"].erase("psdrv_close");
    fake.computer.libraries.erase("TeskControl2");
    Start();
    program->windows.aboutBox.frontEnd = {{"Toolkit", "7.1"}};
    const std::string panel = Seen(Open().SysInfoValue);
    EXPECT_EQ(panel.substr(panel.find("This computer\n")),
              "This computer\n Kernel             Linux 6.1\n Machine            x86_64\n"
              " Distribution       Debian 12\n Locale             C\n Data folder        " +
                  folder.Path() +
                  "\n Sensor driver      /drivers/libpsdrv_32.so, without psdrv_init, psdrv_close\n"
                  " Device list driver libTeskControl2.so: no such file\n"
                  " Toolkit            7.1\n");
    const std::string& plain = program->windows.aboutBox.SupportText();
    EXPECT_TRUE(plain.ends_with("\r\nToolkit:              7.1\r\n")) << plain;
}

TEST_F(AboutBoxTest, HeaderAndLinksNameTheProgram) {
    auto& form = Open();
    EXPECT_EQ(form.AppVersion.caption.Get(), "Version 1.0.22 from 3/7/2005");
    for (controls::Label* link : {&form.HomeLink, &form.ProductLink, &form.SupportMail})
        link->Press();
    EXPECT_EQ(fake.dialogs.opened,
              (std::vector<std::string>{"home", "notes", "tool",
                                        "mailto:box@example?SUBJECT=Question to Kelvra, version "
                                        "1.0.22 from 3/7/2005"}));
    form.CreateSupportString.Press();
    EXPECT_EQ(fake.dialogs.copied, std::vector{program->windows.aboutBox.SupportText()});
}

TEST_F(AboutBoxTest, DriversAreListedWithTheirFolders) {
    fake.computer.names = {{"FrameworkPath", ""},
                           {"FRAMEWORK_PATH", "C:\\VXIPNP"},
                           {"ProgramFilesDir", "C:\\Programs\\"}};
    Put("vxipnp/Bin/hxb_32.dll", 1);
    Put("vxipnp/Bin/HXA.DLL", 2);
    Put("vxipnp/Bin/other.dll", 3);
    Put("Programs/IVI/Bin/hx.dll", 4);
    Put("Windows/inf/hxtesk.inf", 9);
    Put("Windows/inf/hxnone.inf", 9);
    Put("System32/drivers/HXTESK.sys", 5);
    EXPECT_EQ(Seen(Open().DriverInfoValue),
              "Installed Halvex VXI PnP drivers (path: C:\\VXIPNP\\bin\\)\n"
              " HXA.DLL            2.2.3.4\n hxb_32.dll         1.2.3.4\n\n"
              "Installed Halvex IVI drivers (path: C:\\Programs\\IVI\\Bin\\)\n"
              " hx.dll             4.2.3.4\n\n"
              "Installed Halvex USB drivers (path: " +
                  folder.Path("Windows/..") +
                  ")\n"
                  " hxnone.SYS         \n hxtesk.SYS         5.2.3.4\n");
    const std::string& plain = program->windows.aboutBox.SupportText();
    EXPECT_NE(plain.find("\r\nInstalled Halvex IVI drivers:\r\nhx.dll                4.2.3.4\r\n"),
              std::string::npos)
        << plain;
}

}  // namespace kelvra::ui
