// SPDX-License-Identifier: GPL-3.0-or-later
// What follows a sensor through plugging, unplugging, switching and naming.
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::app {

class PresenceTest : public testing::Test, public test::WholeKelvra {
protected:
    controls::TextBox& NameBox() { return program->forms.setupForm.SensLogicalName; }
    std::string Current() const { return program->table[program->table.currentSensor].logicalName; }
    void Switch(int slot) { program->forms.statusForm.ResultGrid.ClickCell(slot + 1, 0); }
    void Name(const std::string& name) {
        NameBox().Type(name);
        NameBox().PressKey("Enter");
    }
};

TEST_F(PresenceTest, TheCurrentSensorStaysTheCurrentOneUntilItHasGone) {
    StartWith(3);
    Switch(1);  // B is the current one now, and switched off
    const struct {
        std::string what;
        std::function<void()> happens;
        std::string current;
        std::string selected;
    } steps[] = {
        {"a tick", [] {}, "B", ""},
        {"one is plugged in",
         [&] {
             driver.devices.push_back({"D", "PS-101", "4"});
         },
         "B", ""},
        {"Start reorders the table", [&] { Measure(1); }, "B", ""},
        {"another one goes", [&] { driver.devices[0].connected = 0; }, "B", ""},
        {"it is switched on", [&] { Switch(program->table.currentSensor); }, "B", "B"},
        {"it goes", [&] { driver.devices[1].connected = 0; }, "C", "C"},
    };
    for (const auto& step : steps) {
        step.happens();
        Tick();
        EXPECT_EQ(Current(), step.current) << step.what;
        EXPECT_EQ(program->forms.setupForm.SensSelect.Text(), step.selected) << step.what;
        EXPECT_EQ(program->forms.mdiMain.TimeSensor_select_new.Text(), step.selected) << step.what;
        EXPECT_EQ(NameBox().Text(), step.current) << step.what;
    }
}

TEST_F(PresenceTest, TheUsersNameLastsAndOneOfSpacesIsNone) {
    const struct {
        std::string typed, name, kept;
    } cases[] = {
        {"output", "output", "output"},
        {"  ", "1", "1"},
        {"", "1", "1"},
    };
    StartWith(2);
    for (const auto& c : cases) {
        Name(c.typed);
        EXPECT_EQ(Current(), c.name) << c.typed;
        Tick();
        EXPECT_EQ(Current(), c.kept) << c.typed;
        EXPECT_EQ(Cell(0, 0).Text(), c.kept) << c.typed;
    }
    Name("output");
    Start();  // the next run
    EXPECT_EQ(Current(), "output");
}

TEST_F(PresenceTest, ANameBeingTypedIsNeitherReplacedNorCommittedByATick) {
    StartWith(1);
    NameBox().Type("inp");
    driver.devices.push_back({"B", "PS-101", "2"});
    driver.devices[0].name = "listed";
    Tick();
    EXPECT_EQ(NameBox().Text(), "inp");
    EXPECT_EQ(Current(), "listed");
    Name("input");
    EXPECT_EQ(Current(), "input");
}

TEST_F(PresenceTest, UnnamedSensorsAreNamedByTheirNewSlotsAtStart) {
    StartWith(2);
    for (auto& device : driver.devices) device.name = "";
    Tick();
    Switch(0);
    Measure(1);
    EXPECT_EQ(program->table[0].logicalName, "1");
    EXPECT_EQ(program->table[1].logicalName, "2");
}

TEST_F(PresenceTest, ADisplayGoesWithItsLastSensorAndComesWithItsFirst) {
    folder.Put("Kelvra.INI", "[PS-101;2_MODE]\r\nMode=4\r\n");
    StartWith(2);
    for (const bool plugged : {true, false, true}) {
        driver.devices[1].connected = plugged ? 1 : 0;
        Tick();
        EXPECT_EQ(program->state.traceModeActive, plugged);
        EXPECT_EQ(program->forms.scopeDisp.visible, plugged);
        EXPECT_EQ(program->forms.scopeDisp.Scope_Sensorselect.Count(), plugged ? 1 : 0);
    }
}

TEST_F(PresenceTest, ASecondStartInTheSimulationBeginsAnew) {
    Start();
    Measure(40);
    EXPECT_NE(Cell(0, 4).Text(), "");
    Measure(1);
    EXPECT_EQ(Cell(0, 4).Text(), "");
    EXPECT_EQ(Cell(0, 3).Text(), "||");  // the second pass was stopped
}

}  // namespace kelvra::app
