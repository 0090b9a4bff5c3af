// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/discovery.h"

#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::app {

class DiscoveryTest : public testing::Test, public test::WholeKelvra {
protected:
    // Name of every present sensor by slot, "-" behind one that is switched off, "." for a free
    // slot.
    std::string Slots() const {
        std::string names;
        for (int slot = 0; slot < program->table.Slots(); ++slot) {
            const auto& entry = program->table[slot];
            names += !entry.Present ? "." : entry.LogicalName + (entry.Enabled ? "" : "-");
        }
        return names;
    }
    void Plug(const std::string& places) {  // a point is a place without a connected device
        driver.devices.clear();
        for (const char name : places)
            driver.devices.push_back({{name}, "PS-101", {name}, name == '.' ? 0 : 1});
    }
    void Switch(int slot) { program->forms.statusForm.ResultGrid.Click.Raise(slot + 1, 0); }
    std::string Connection() const { return program->forms.mdiMain.ConSensors.Caption; }
};

TEST_F(DiscoveryTest, HasAsManySlotsAsTheListHasPlacesButEightForOneSensor) {
    const struct {
        const char* places;
        const char* slots;
        const char* text;
    } cases[] = {
        {"A", "A.......", "1 sensor connected"},
        {"AB", "AB", "2 sensors connected"},
        {"A.C", "AC.", "2 sensors connected"},
        {".B", "B.", "1 sensor connected"},
        {"ABCDEFGHIJ", "ABCDEFGHIJ", "10 sensors connected"},
    };
    for (const auto& c : cases) {
        Plug(c.places);
        Start();
        EXPECT_EQ(Slots(), c.slots) << c.places;
        EXPECT_EQ(Connection(), c.text);
        EXPECT_EQ(program->forms.mdiMain.ConSensors.Fore.Get(), controls::Green);
        EXPECT_EQ(program->table.Sensors.size(), std::string(c.slots).size() + 1);
        EXPECT_EQ(program->forms.setupForm.SensSelect.Count(), program->catalogue.Connected());
    }
}

TEST_F(DiscoveryTest, SurvivesListsOfAnyLength) {
    for (int i = 0; i < 300; ++i) driver.devices.push_back({"", "", std::to_string(i)});
    const struct {
        std::int32_t length;
        int slots;
    } cases[] = {
        {100, 100}, {1000, 256}, {-5, 2}, {INT32_MIN, 2}, {INT32_MAX, 256},
    };
    for (const auto& c : cases) {
        driver.listLength = c.length;
        Start();
        EXPECT_EQ(program->table.SensorSlotCount, c.slots) << c.length;
        EXPECT_EQ(program->table[c.slots - 1].LogicalName, std::to_string(c.slots));  // its channel
        Tick();
    }
}

TEST_F(DiscoveryTest, EveryStepLeavesTheSensorsWhereTheyBelong) {
    const struct {
        const char* plugged;
        const char* slots;
        const char* nextTick;
    } steps[] = {
        {"AB", "AB", "AB"},
        {"ABC", "ABC", "ABC"},  // appears behind the others
        {".BC", "...", "BC."},  // one goes: all are assigned anew
        {"ABC", "BCA", "BCA"},  // comes back into the free slot
        {"", "SensSim1SensSim2......", "SensSim1SensSim2......"},
        {"C", "C.......", "C......."},  // from simulation at once
        {"D", "........", "D......."},  // another one in its place
    };
    Plug("AB");
    Start();
    for (const auto& step : steps) {
        Plug(step.plugged);
        Tick();
        EXPECT_EQ(Slots(), step.slots) << step.plugged;
        Tick();
        EXPECT_EQ(Slots(), step.nextTick) << step.plugged;
        EXPECT_EQ(program->table.SimulationMode, step.plugged[0] == '\0');
    }
}

TEST_F(DiscoveryTest, AVanishingSensorSavesAllAndEachGetsItsSettingsBack) {
    Plug("AB");
    Start();
    program->table[0].Settings.TrigLevel = -1;
    program->table[1].Settings.TrigLevel = -2;
    Plug(".B");
    Tick();
    EXPECT_NE(folder.Get("Kelvra.INI").find("[PS-101;A_TRIG]"), std::string::npos);
    program->table[0].Settings.TrigLevel = program->table[1].Settings.TrigLevel = 9;
    Tick();
    EXPECT_EQ(program->table[0].LogicalName, "B");
    EXPECT_EQ(program->table[0].Settings.TrigLevel, -2);
    Plug("");
    Tick();  // into simulation
    Plug("A");
    Tick();
    EXPECT_EQ(program->table[0].Settings.TrigLevel, -1);
}

TEST_F(DiscoveryTest, RemembersWhatTheUserHasSwitchedOffInThisRun) {
    Plug("AB");
    Start();
    Switch(1);
    const struct {
        const char* plugged;
        const char* slots;
    } steps[] = {
        {"AB", "AB-"}, {"ABC", "AB-C"}, {".BC", "B-C."}, {"", "SensSim1SensSim2......"},
        {"AB", "AB-"},
    };
    for (const auto& step : steps) {
        Plug(step.plugged);
        Tick();
        Tick();
        EXPECT_EQ(Slots(), step.slots) << step.plugged;
    }
    Switch(1);
    Plug("A");
    Tick();
    Plug("AB");
    Tick();
    Tick();
    EXPECT_EQ(Slots(), "AB");
}

TEST_F(DiscoveryTest, ASwitchedOffSimulatedSensorStaysSo) {
    Start();
    Switch(0);
    Tick();
    EXPECT_EQ(Slots().substr(0, 17), "SensSim1-SensSim2");
    EXPECT_EQ(Cell(0, 0).back, controls::Grey);
}

TEST_F(DiscoveryTest, ANameOfTheDeviceListIsTakenOverAndNoneIsTheChannel) {
    Plug("AB");
    driver.devices[1].name = "";
    Start();
    EXPECT_EQ(Slots(), "A2");
    driver.devices[0].name = "new";
    Tick();
    EXPECT_EQ(Slots(), "new2");
    EXPECT_EQ(Cell(0, 0).text, "new");
}

TEST_F(DiscoveryTest, RestsWhileAMeasurementRuns) {
    Plug("AB");
    Start();
    driver.count.clear();
    fake.events.onRound = [&](int round) {
        if (round == 3) Plug("B");
        fake.clock.Advance(std::chrono::milliseconds(600));
        if (round == 50) {
            EXPECT_EQ(Slots(), "AB");
            EXPECT_EQ(driver.Count("TeskGetDeviceListLength"), 0);
            PressStop();
        }
    };
    PressStart();
    fake.events.onRound = nullptr;
    Tick();
    EXPECT_EQ(driver.Count("TeskGetDeviceListLength"), 1);
}

}  // namespace kelvra::app
