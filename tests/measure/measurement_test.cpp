// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <algorithm>

#include "support/whole_kelvra.h"

namespace kelvra::measure {

using controls::Green;
using controls::Grey;
using Lines = std::vector<std::string>;
using Messages = std::vector<test::FakeDialogs::Shown>;

class MeasurementTest : public testing::Test, public test::WholeKelvra {
protected:
    void Click(int row, int column) {
        program->forms.statusForm.ResultGrid.Click.Raise(row, column);
    }
    std::string Name(int slot) const { return program->table[slot].LogicalName; }
    bool IsIdle() const {
        const auto& window = program->forms.mdiMain;
        return window.StartIt.Enabled && !window.StopIt.Enabled && !program->state.Measuring &&
               !program->state.commandRuns;
    }
    int InstrumentCalls() const {
        int calls = 0;
        for (const auto& call : driver.calls) calls += call.starts_with("psdrv_") ? 1 : 0;
        return calls;
    }
};

TEST_F(MeasurementTest, AnEnabledSensorOpensTheSessionWhereverItStood) {
    StartWith(3);
    Click(1, NameColumn);
    ASSERT_EQ(program->table.CurrentSensor, 0);
    Measure(1);
    EXPECT_EQ(Name(0) + Name(1) + Name(2), "BCA");
    EXPECT_EQ(driver.Count("psdrv_init"), 1);
    EXPECT_EQ(driver.Count("psdrv_AddSensor"), 1);
    EXPECT_NE(std::find(driver.calls.begin(), driver.calls.end(),
                        "psdrv_AddSensor(12, 2, USB::0x1c5b::0x003::3, 1, 1)"),
              driver.calls.end());
    EXPECT_EQ(Cell(0, NameColumn).back, Green);
    EXPECT_EQ(Cell(1, NameColumn).text, "C");
}

TEST_F(MeasurementTest, WithNoSensorSwitchedOnItHoldsUntilStop) {
    StartWith(2);
    Click(1, NameColumn);
    Click(2, NameColumn);
    PressStart();
    EXPECT_EQ(fake.dialogs.messages, (Messages{{"", "No operational sensor selected"}}));
    EXPECT_EQ(InstrumentCalls(), 0);
    EXPECT_FALSE(program->forms.mdiMain.StartIt.Enabled);
    EXPECT_TRUE(program->state.Measuring);
    driver.devices[0].connected = 0;
    Tick();  // discovery rests
    EXPECT_EQ(Name(0), "A");
    PressStop();
    EXPECT_TRUE(IsIdle());
    Tick();
    EXPECT_EQ(Name(0), "");
}

TEST_F(MeasurementTest, AFailedStartIsToldAndHoldsUntilStop) {
    const struct {
        const char* function;
        const char* message;
        std::size_t messages;
        int closes;
    } cases[] = {
        {"psdrv_init", "gone", 2, 0},
        {"psdrv_AddSensor", "gone", 2, 1},
        {"psdrv_init", "bad descriptor", 1, 0},
    };
    StartWith(2);
    for (const auto& c : cases) {
        for (int slot = 0; slot < 2; ++slot) program->table[slot].Enabled = true;
        fake.dialogs.messages.clear();
        driver.count.clear();
        driver.message = c.message;
        driver.status = [&](std::string_view name, int) { return name == c.function ? -5 : 0; };
        PressStart();
        ASSERT_EQ(fake.dialogs.messages.size(), c.messages) << c.function;
        EXPECT_EQ(fake.dialogs.messages[0].text, std::string(c.message) + "\r\n(queue empty)");
        EXPECT_EQ(fake.dialogs.messages.back().title, c.messages > 1 ? "Initialization Error" : "");
        EXPECT_EQ(driver.Count("psdrv_close"), c.closes) << c.function;
        EXPECT_EQ(driver.Count("psdrv_chans_initiate"), 0);
        EXPECT_FALSE(program->forms.mdiMain.StartIt.Enabled);
        PressStop();
        EXPECT_TRUE(IsIdle());
    }
}

TEST_F(MeasurementTest, ASensorIsWaitedForInTheNoticeAfterASecond) {
    const struct {
        driver::Status status;
        const char* notice;
    } cases[] = {
        {0, "Waiting for a trigger signal at sensor 1"},
        {5, "Waiting for a trigger signal at sensor 1: bad value"},
    };
    StartWith(1);
    driver.complete = [](int) { return false; };
    for (const auto& c : cases) {
        driver.status = [&](std::string_view name, int) {
            return name == "psdrv_chan_isMeasurementComplete" ? c.status : 0;
        };
        const controls::Frame& frame = program->forms.mdiMain.ConnectedFrame;
        bool early = false;
        bool shown = false;
        fake.events.onRound = [&](int round) {
            early = early || (round > 1 && round < 1000 && frame.Visible);
            if (round < 1010) return;
            shown = frame.Visible && Notice() == c.notice;
            PressStop();
        };
        PressStart();
        EXPECT_FALSE(early);
        EXPECT_TRUE(shown) << c.notice;
        EXPECT_FALSE(frame.Visible);  // nothing is waited for any more
        EXPECT_TRUE(IsIdle());
    }
}

TEST_F(MeasurementTest, ATriggerIsSentForARequestOfThePassThatWaits) {
    StartWith(1);
    const auto triggers = [this] { return driver.Count("psdrv_meass_sendSoftwareTrigger"); };
    driver.complete = [&](int) { return triggers() > 0; };
    program->table[0].TriggerNowRequest = true;  // of no pass: dropped
    fake.events.onRound = [&](int round) {
        if (round == 5) {
            EXPECT_EQ(triggers(), 0);
            program->table[0].TriggerNowRequest = true;
        }
        if (program->state.Passes == 2 || round > 100) PressStop();
    };
    PressStart();
    EXPECT_EQ(triggers(), 1);
    EXPECT_EQ(program->state.Passes, 2);
}

TEST_F(MeasurementTest, TheStatusCellCountsToEightBarsWithAPointWhileWaiting) {
    StartWith(1);
    int asked = 0;
    driver.complete = [&](int) { return ++asked % 2 == 0; };
    Lines seen{""};
    fake.events.onRound = [&](int) {
        if (Cell(0, StatusColumn).text != seen.back()) seen.push_back(Cell(0, StatusColumn).text);
        if (program->state.Passes == 9) PressStop();
    };
    PressStart();
    Lines expected{""};
    for (const std::size_t bars : {1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 1U, 2U}) {
        expected.push_back(std::string(bars, '|') + ".");
        expected.push_back(std::string(bars, '|'));
    }
    expected.pop_back();
    EXPECT_EQ(seen, expected);
}

TEST_F(MeasurementTest, AClickOnAPresentSensorsNameSwitchesItAndNothingElseDoes) {
    StartWith(1);
    const struct {
        int row, column;
        bool enabled;
    } clicks[] = {
        {1, WattColumn, true}, {2, NameColumn, true},  {0, NameColumn, true},
        {9, NameColumn, true}, {-1, NameColumn, true}, {1, NameColumn, false},
        {1, NameColumn, true},
    };
    for (const auto& click : clicks) {
        Click(click.row, click.column);
        EXPECT_EQ(program->table[0].Enabled, click.enabled) << click.row << click.column;
        EXPECT_EQ(Cell(0, NameColumn).back, click.enabled ? Green : Grey);
        EXPECT_FALSE(program->table[1].Enabled);
    }
}

TEST_F(MeasurementTest, APressSelectsWithoutSwitchingAndAnUnlistedSensorLeavesNoEntrySelected) {
    StartWith(2);
    auto& grid = program->forms.statusForm.ResultGrid;
    auto& list = program->forms.setupForm.SensSelect;
    grid.MouseDown.Raise(2, NameColumn);
    EXPECT_EQ(program->table.CurrentSensor, 1);
    EXPECT_EQ(list.Text(), "B");
    EXPECT_EQ(program->forms.setupForm.SensLogicalName.Text(), "B");
    EXPECT_TRUE(program->table[1].Enabled);
    Click(1, NameColumn);
    program->selection.UpdateSensSelect();
    EXPECT_EQ(list.Items(), (std::vector<controls::List::Item>{{"B", 1}}));
    grid.MouseDown.Raise(1, NameColumn);
    EXPECT_EQ(program->table.CurrentSensor, 0);
    EXPECT_EQ(list.Index(), -1);
}

TEST_F(MeasurementTest, ASwitchWhileMeasuringWaitsForTheNextStart) {
    StartWith(2);
    fake.events.onRound = [&](int) {
        if (program->state.Passes == 1 && program->table[0].Enabled) Click(1, NameColumn);
        if (program->state.Passes == 4) PressStop();
    };
    PressStart();
    EXPECT_EQ(driver.Count("psdrv_meass_fetchMeasurement"), 8);
    Measure(2);
    EXPECT_EQ(Name(0), "B");
    EXPECT_EQ(driver.Count("psdrv_meass_fetchMeasurement"), 10);
}

TEST_F(MeasurementTest, ChangedSettingsAreSentBeforeTheNextMeasurement) {
    StartWith(1);
    fake.events.onRound = [&](int) {
        auto& entry = program->table[0];
        if (program->state.Passes == 2 && entry.Settings.TrigCount != 9) {
            entry.Settings.TrigCount = 9;
            entry.SettingsChanged = true;
        }
        if (program->state.Passes == 4) PressStop();
    };
    PressStart();
    EXPECT_EQ(driver.Count("psdrv_chan_reset"), 2);
    EXPECT_NE(
        std::find(driver.calls.begin(), driver.calls.end(), "psdrv_trigger_setCount(12, 1, 9)"),
        driver.calls.end());
    EXPECT_FALSE(program->table[0].SettingsChanged);
}

TEST_F(MeasurementTest, ASimulatedMeasurementCallsNoDriverAndReadsTheSimulatedLevels) {
    Start();
    Measure(30);
    EXPECT_EQ(InstrumentCalls(), 0);
    const struct {
        int slot;
        double low, high;
    } cases[] = {{0, -8.72, -8.62}, {1, -4.05, -3.999}};
    for (const auto& c : cases) {
        const double level = program->table[c.slot].History.LastLevel();
        EXPECT_TRUE(level >= c.low && level <= c.high) << level;
        EXPECT_NE(Cell(c.slot, SigmaColumn).text, "");
        EXPECT_EQ(program->table.SlotReadings[static_cast<std::size_t>(c.slot)][0], 0);
    }
    EXPECT_TRUE(IsIdle());
}

TEST_F(MeasurementTest, TwoProgramsDoNotSeeEachOther) {
    StartWith(1);
    test::FakeHost other{files};
    other.computer.folder = folder.Path();
    app::Kelvra second{other.host};
    second.Start();
    Measure(1);
    EXPECT_EQ(second.state.Passes, 0);
    EXPECT_TRUE(second.table.SimulationMode);
    EXPECT_FALSE(program->table.SimulationMode);
}

}  // namespace kelvra::measure
