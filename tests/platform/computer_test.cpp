// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/posix_computer.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/data_folder.h"
#include "posix/os_release.h"
#include "posix/posix_files.h"
#include "support/temp_folder.h"

namespace kelvra::platform {

class PosixComputerTest : public testing::Test {
protected:
    PosixComputer Make(const std::string& driverDir = {}) {
        return {files_, {folder_.Path("data/"), driverDir, {"DEBUG", "x"}, {"Kelvra", 1, 2, 3}}};
    }

    test::TempFolder folder_;
    PosixFiles files_;
};

TEST_F(PosixComputerTest, PutsProgramFolderAndDriveIntoTheDataFolder) {
    PosixComputer computer = Make();
    EXPECT_EQ(computer.ProgramFolder(), folder_.Path("data"));
    EXPECT_EQ(computer.DrivePath("C:\\a\\b.txt"), folder_.Path("data/a/b.txt"));
    EXPECT_EQ(computer.SystemFolder(), folder_.Path("data/System32"));
    EXPECT_EQ(computer.WindowsFolder(), folder_.Path("data/Windows"));
    EXPECT_EQ(computer.CommandLine(), "DEBUG x");
    EXPECT_TRUE(computer.ProgramFileDate().has_value());  // of this test
    folder_.Put("file", "");
    EXPECT_TRUE(PosixComputer(files_, {folder_.Path("file"), {}, {}, {}}).DataFolderError());
}

TEST_F(PosixComputerTest, KeepsTheRegistryInAFileAndSaysWhenItCannot) {
    PosixComputer computer = Make();
    const std::string key = "HKLM\\SOFTWARE\\X";
    EXPECT_EQ(computer.OwnRegistry(), folder_.Path("data/registry.ini"));
    EXPECT_FALSE(computer.WriteRegistry(key, "PS-101;1", "left"));
    EXPECT_EQ(computer.ReadRegistry(key, "PS-101;1"), "left");
    EXPECT_FALSE(computer.WriteRegistry(key, "", "default"));
    EXPECT_EQ(computer.ReadRegistry(key, ""), "default");
    std::filesystem::permissions(folder_.Path("data/registry.ini"),
                                 std::filesystem::perms::owner_read);
    EXPECT_EQ(computer.WriteRegistry(key, "PS-101;1", "right"), std::errc::permission_denied);
    EXPECT_EQ(computer.ReadRegistry(key, "PS-101;1"), "left");
    {
        const FolderLock other(files_, folder_.Path("data"));
        EXPECT_EQ(computer.WriteRegistry(key, "PS-101;1", "right").message(),
                  "another Kelvra is changing the files of this folder");
    }
}

TEST_F(PosixComputerTest, LoadsALibraryFromTheDriverFolderAlone) {
    const LoadedLibrary sample = Make(KELVRA_SAMPLE_FOLDER).LoadDriverLibrary("sample");
    ASSERT_TRUE(sample.library) << sample.why;
    EXPECT_EQ(sample.path, KELVRA_SAMPLE_FOLDER "/libsample.so");
    EXPECT_EQ(sample.library->Find("NoSuchFunction"), nullptr);
    const auto answer = reinterpret_cast<int (*)()>(sample.library->Find("SampleAnswer"));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer(), 42);

    std::filesystem::create_directory(folder_.Path("data"));
    std::filesystem::copy(KELVRA_SAMPLE_FOLDER "/libsample.so", folder_.Path("data/libsample.so"));
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder_.Path("data"));
    const LoadedLibrary none = Make().LoadDriverLibrary("sample");
    const LoadedLibrary here = Make(".").LoadDriverLibrary("sample");
    std::filesystem::current_path(before);
    EXPECT_FALSE(none.library);
    EXPECT_TRUE(here.library) << here.why;
    folder_.Put("libbroken.so", "no library");
    const LoadedLibrary broken = Make(folder_.Path()).LoadDriverLibrary("broken");
    EXPECT_FALSE(broken.library);
    EXPECT_NE(broken.why.find("libbroken.so"), std::string::npos) << broken.why;
}

TEST(OsRelease, NamesTheDistribution) {
    const struct {
        const char* text;
        const char* name;
    } cases[] = {
        {"NAME=\"Some\"\nPRETTY_NAME=\"Some \\\"Linux\\\" 12\"\n", "Some \"Linux\" 12"},
        {"ID=x\nNAME=Some\n", "Some"},
        {"PRETTY_NAME='a", "'a"},
        {"no line\n=\n", ""},
    };
    for (const auto& c : cases) EXPECT_EQ(NameOfDistribution(c.text), c.name) << c.text;
}

TEST(PosixLocale, WritesDateAndTimeAndFallsBackToC) {
    for (const char* name : {"C", "xx_NOWHERE.nothing"}) {
        const PosixLocale locale(name);
        const LocalTime time{2005, 3, 7, 14, 5, 9, 0};
        EXPECT_EQ(locale.DateText(time), "03/07/05") << name;
        EXPECT_EQ(locale.TimeText(time), "14:05:09") << name;
        EXPECT_EQ(locale.Numbers().decimal, ".") << name;
        EXPECT_EQ(locale.Numbers().grouping, "") << name;
    }
}

}  // namespace kelvra::platform
