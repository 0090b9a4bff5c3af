// SPDX-License-Identifier: GPL-3.0-or-later
// The application INI file: two programs that share it, and files that can't be read.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/file_tools.h"
#include "support/whole_kelvra.h"

namespace kelvra::app {

using test::FaultyFiles;

// As much of a program as keeps settings, with one sensor.
struct Program {
    explicit Program(const test::TempFolder& folder) {
        fake.computer.folder = folder.Path();
        sensor.sensorId = "PS-101;1";
        store.Open(fake.computer);
        Read();
    }
    void Read() { store.Read({&sensor}); }
    void Save() { store.Save({&sensor}); }
    std::string Notice() const {
        return forms.mdiMain.ConnectedFrame.visible ? forms.mdiMain.lblMeasAwait.caption.Get() : "";
    }

    std::unique_ptr<platform::Files> disk = platform::NativeFiles();
    FaultyFiles files{*disk};
    test::FakeHost fake{files};
    forms::Forms forms;
    driver::DebugLog log{files, fake.clock, fake.computer.Numbers()};
    sensors::SensorTable table;
    ui::Notice notice{forms.mdiMain, table, fake.clock};
    SettingsStore store{files, log, notice};
    sensors::SensorEntry sensor;
};

class SettingsStoreTest : public testing::Test {
protected:
    bool FileHas(const std::string& line) const {
        return folder_.Get("Kelvra.INI").find("\n" + line + "\r\n") != std::string::npos;
    }

    test::TempFolder folder_;
    const std::string ini_ = folder_.Path("Kelvra.INI");
};

TEST_F(SettingsStoreTest, ASaveKeepsWhatAnotherProgramHasChanged) {
    folder_.Put("Kelvra.INI", "[PS-101;1_TRIG]\r\nlevel=-12\r\nHoldOff=1\r\n");
    Program first(folder_);
    Program second(folder_);
    first.sensor.settings.TrigLevel = 5;
    first.Save();
    second.sensor.settings.TrigHoldOff = 2;
    second.Save();
    EXPECT_TRUE(FileHas("level=5") && FileHas("HoldOff=2")) << folder_.Get("Kelvra.INI");
    first.sensor.settings.TrigHoldOff = 3;  // what was saved before is no change any more
    first.Save();
    second.Save();
    EXPECT_TRUE(FileHas("level=5") && FileHas("HoldOff=3")) << folder_.Get("Kelvra.INI");
    EXPECT_TRUE(FileHas("Slope=0")) << "a field that the file has no value for";
}

TEST_F(SettingsStoreTest, TheSecondProgramSaysThatTheFolderIsInUseUntilTheFirstHasGone) {
    auto first = std::make_unique<Program>(folder_);
    Program second(folder_);
    EXPECT_EQ(first->Notice(), "");
    EXPECT_EQ(second.Notice(), "Another Kelvra is using the data folder: " + folder_.Path());
    second.Save();
    EXPECT_NE(second.Notice(), "");
    first.reset();
    second.Save();
    EXPECT_EQ(second.Notice(), "");
}

TEST_F(SettingsStoreTest, WhatCouldNotBeReadIsKeptInMemoryAndNotWrittenOver) {
    const std::string before = "[PS-101;1_TRIG]\r\nlevel=-12\r\n";
    folder_.Put("Kelvra.INI", before);
    std::filesystem::resize_file(ini_, platform::LargestFile + 1);
    Program program(folder_);
    EXPECT_EQ(program.Notice(), "The settings could not be read: " + ini_ + ": File too large");
    program.Save();
    EXPECT_EQ(program.store.SaveFailure(), "") << "nothing has changed";

    program.sensor.settings.TrigLevel = 5;
    program.Save();
    EXPECT_EQ(program.Notice(), "The settings could not be saved: " + ini_ + ": File too large");
    std::filesystem::resize_file(ini_, before.size());
    program.Save();
    EXPECT_EQ(program.store.SaveFailure(), "The settings could not be saved: " + ini_ +
                                               ": those of PS-101;1 in the file could not be read "
                                               "before, and would be lost");
    EXPECT_EQ(program.Notice(), program.store.SaveFailure());
    EXPECT_EQ(folder_.Get("Kelvra.INI"), before);
    program.sensor.settings = {};
    program.Read();
    EXPECT_EQ(program.sensor.settings.TrigLevel, 5) << "in memory";

    program.sensor.settings = sensors::DefaultSettings();  // nothing is left to save
    program.Save();
    program.Read();
    EXPECT_EQ(program.sensor.settings.TrigLevel, -12);
    EXPECT_EQ(program.Notice(), "");
}

TEST_F(SettingsStoreTest, AFailureIsTakenBackWhenTheSameHasSucceeded) {
    Program program(folder_);
    program.sensor.settings.TrigLevel = 5;
    {
        const platform::FolderLock other(program.files, folder_.Path());
        program.Save();
    }
    EXPECT_EQ(program.Notice(), "The settings could not be saved: " + ini_ +
                                    ": another Kelvra is changing the files of this folder");
    program.Read();
    EXPECT_NE(program.Notice(), "") << "reading is no saving";
    EXPECT_EQ(program.sensor.settings.TrigLevel, 5);
    program.Save();
    EXPECT_EQ(program.Notice(), "");
    EXPECT_TRUE(FileHas("level=5"));
    folder_.Put("Kelvra.INI", "");
    program.files.Plan(1, FaultyFiles::Fault::Fail);
    program.Read();
    EXPECT_EQ(program.sensor.settings.TrigLevel, 5) << "as last known";
    EXPECT_NE(program.Notice(), "");
    program.Read();
    EXPECT_EQ(program.Notice(), "");
}

TEST(SensorName, AFailedWriteOfTheRegistryIsSaidUntilOneSucceeds) {
    test::WholeKelvra kelvra;
    forms::Forms& forms = kelvra.StartWith(1).forms;
    const auto rename = [&](const std::string& name) {
        forms.setupForm.SensLogicalName.SetText(name);
        kelvra.program->windows.sensorName.StoreLogicalName(0);
    };
    kelvra.fake.computer.registryError = make_error_code(std::errc::no_space_on_device);
    rename("left");
    EXPECT_EQ(kelvra.Notice(),
              "The sensor's name could not be stored: " + kelvra.folder.Path("registry.ini") +
                  ": No space left on device");
    EXPECT_TRUE(forms.mdiMain.ConnectedFrame.visible);
    kelvra.fake.computer.registryError.clear();
    rename("right");
    EXPECT_FALSE(forms.mdiMain.ConnectedFrame.visible);
}

}  // namespace kelvra::app
