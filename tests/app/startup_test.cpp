// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::app {

class StartupTest : public testing::Test, public test::WholeKelvra {};

TEST_F(StartupTest, TheTitleNamesVersionDateAndDebugMode) {
    const platform::LocalTime march{2005, 3, 7, 1, 2, 3, 0};
    const struct {
        int revision;
        std::optional<platform::LocalTime> date;
        const char* commandLine;
        const char* rest;
    } cases[] = {
        {22, march, "/Debug", "1.0.22 from 3/7/2005 [DEBUG MODE]"},
        {0, march, "", "1.0 from 3/7/2005"},
        {0, {}, "DEB UG", "1.0 from "},
        {1, march, "x -debugX", "1.0.1 from 3/7/2005 [DEBUG MODE]"},
    };
    for (const auto& c : cases) {
        fake.computer.version.revision = c.revision;
        fake.computer.programDate = c.date;
        fake.computer.commandLine = c.commandLine;
        folder.Put("DebugKelvra.txt", "old");
        EXPECT_EQ(Start().forms.mdiMain.Caption.Get(),
                  std::string("Halvex Kelvra, Version ") + c.rest);
        EXPECT_EQ(folder.Get("DebugKelvra.txt").find("old"), std::string::npos);
    }
}

TEST_F(StartupTest, WithoutSensorsTwoSimulatedOnesStandInEightSlots) {
    Start();
    EXPECT_EQ(program->table.SensorSlotCount, 8);
    EXPECT_EQ(program->table.Sensors.size(), 9U);
    EXPECT_TRUE(program->table.SimulationMode);
    const auto& window = program->forms.mdiMain;
    EXPECT_EQ(window.ConSensors.Caption.Get(), "Simulation Mode");
    EXPECT_EQ(window.ConSensors.Fore.Get(), controls::Red);
    EXPECT_EQ(window.SensSyncMode.Text(), "Async");
    EXPECT_FALSE(window.FileSaveData.Enabled);
    EXPECT_FALSE(program->forms.setupForm.ActionFrame.Enabled);
    const char* names[] = {"SensSim1", "SensSim2", ""};
    for (int slot = 0; slot < 3; ++slot) {
        EXPECT_EQ(program->table[slot].LogicalName, names[slot]);
        EXPECT_EQ(Cell(slot, 0).text, names[slot]);
        EXPECT_EQ(Cell(slot, 0).back, slot < 2 ? controls::Green : controls::Grey);
    }
    EXPECT_EQ(program->forms.setupForm.SensSelect.Count(), 2);
}

TEST_F(StartupTest, ReadsTheSettingsOfItsSlots) {
    folder.Put("Kelvra.INI", "[SENS2_TRIG]\r\nlevel=-7\r\n");
    Start();
    EXPECT_EQ(program->table[1].Settings.TrigLevel, -7);
    EXPECT_EQ(program->table[0].Settings.TrigLevel, -30);
}

TEST_F(StartupTest, ALibraryThatIsNotThereIsNoErrorButALineInTheLog) {
    fake.computer.libraries.clear();
    fake.computer.commandLine = "debug";
    Start();
    EXPECT_TRUE(program->table.SimulationMode);
    EXPECT_EQ(fake.dialogs.messages.size(), 0U);
    const std::string log = folder.Get("DebugKelvra.txt");
    for (const char* file : {"libpsdrv_32.so", "libTeskControl2.so"})
        EXPECT_NE(log.find(std::string(file) + " was not loaded: no such file\r\n"),
                  std::string::npos);
    Measure(1);
    PressExit();
    EXPECT_TRUE(fake.events.quit);
}

}  // namespace kelvra::app
