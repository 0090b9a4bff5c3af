// SPDX-License-Identifier: GPL-3.0-or-later
// What stands in the slots when the program starts, and after each search for sensors.
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::app {

class StartupTest : public testing::Test, public test::WholeKelvra {
protected:
    // Name of every present sensor by slot, "-" behind one that is switched off, "." for a free
    // slot.
    std::string Slots() const {
        std::string names;
        for (int slot = 0; slot < program->table.Slots(); ++slot) {
            const auto& entry = program->table[slot];
            names += !entry.present ? "." : entry.logicalName + (entry.enabled ? "" : "-");
        }
        return names;
    }
    void Plug(const std::string& places) {  // a point is a place without a connected device
        driver.devices.clear();
        for (const char name : places)
            driver.devices.push_back({{name}, "PS-101", {name}, name == '.' ? 0 : 1});
    }
    // After each search, for nothing may change any more.
    void ExpectSlots(const std::string& plugged, const std::string& slots) {
        Plug(plugged);
        for (int tick = 1; tick <= 2; ++tick) {
            Tick();
            EXPECT_EQ(Slots(), slots) << plugged << tick;
        }
    }
    void Switch(int slot) { program->forms.statusForm.ResultGrid.click.Raise(slot + 1, 0); }
};

TEST_F(StartupTest, EveryStepLeavesTheSensorsWhereTheyBelong) {
    const struct {
        std::string plugged, slots;
    } steps[] = {
        {"AB", "AB"},
        {"ABC", "ABC"},  // appears after the others
        {".BC", "BC."},  // one goes: all are assigned anew
        {"ABC", "BCA"},  // comes back into the free slot
        {"", "SensSim1SensSim2......"},
        {"C", "C......."},  // from simulation at once
        {"D", "D......."},  // another one in its place
    };
    Plug("AB");
    Start();
    for (const auto& [plugged, slots] : steps) {
        ExpectSlots(plugged, slots);
        EXPECT_EQ(program->table.simulationMode, plugged.empty());
    }
}

TEST_F(StartupTest, AVanishingSensorSavesAllAndEachGetsItsSettingsBack) {
    Plug("AB");
    Start();
    program->table[0].settings.TrigLevel = -1;
    program->table[1].settings.TrigLevel = -2;
    Plug(".B");
    Tick();
    EXPECT_EQ(program->table[0].logicalName, "B");
    EXPECT_EQ(program->table[0].settings.TrigLevel, -2);
    Plug("");
    Tick();  // into simulation
    Plug("A");
    Tick();
    EXPECT_EQ(program->table[0].settings.TrigLevel, -1);
}

TEST_F(StartupTest, RemembersWhatTheUserHasSwitchedOffInThisRun) {
    Plug("AB");
    Start();
    Switch(1);
    ExpectSlots("AB", "AB-");
    ExpectSlots("ABC", "AB-C");
    ExpectSlots(".BC", "B-C.");
    ExpectSlots("", "SensSim1SensSim2......");
    Switch(0);
    ExpectSlots("", "SensSim1-SensSim2......");
    ExpectSlots("AB", "AB-");
    Switch(1);
    ExpectSlots("A", "A.......");
    ExpectSlots("AB", "AB");
}

TEST_F(StartupTest, TheTitleNamesVersionDateAndDebugMode) {
    const platform::LocalTime march{2005, 3, 7, 1, 2, 3, 0};
    const struct {
        int revision;
        std::optional<platform::LocalTime> date;
        std::string commandLine, rest;
    } cases[] = {
        {22, march, "/Debug", "1.0.22 from 3/7/2005 [DEBUG MODE]"},
        {0, {}, "DEB UG", "1.0 from "},
    };
    for (const auto& [revision, date, commandLine, rest] : cases) {
        fake.computer.version.revision = revision;
        fake.computer.programDate = date;
        fake.computer.commandLine = commandLine;
        folder.Put("DebugKelvra.txt", "old");
        EXPECT_EQ(Start().forms.mdiMain.caption.Get(), "Halvex Kelvra, Version " + rest);
        EXPECT_EQ(folder.Get("DebugKelvra.txt").find("old"), std::string::npos);
    }
}

TEST_F(StartupTest, HasAsManySlotsAsTheListHasPlacesButEightForOneSensor) {
    const struct {
        std::string places, slots, text;
    } cases[] = {
        {"A", "A.......", "1 sensor connected"},
        {"A.C", "AC.", "2 sensors connected"},
        {"ABCDEFGHIJ", "ABCDEFGHIJ", "10 sensors connected"},
    };
    for (const auto& [places, slots, text] : cases) {
        Plug(places);
        Start();
        EXPECT_EQ(Slots(), slots) << places;
        EXPECT_EQ(program->forms.mdiMain.ConSensors.caption.Get(), text);
        EXPECT_EQ(program->forms.setupForm.SensSelect.Count(), program->catalogue.Connected());
    }
}

}  // namespace kelvra::app
