// SPDX-License-Identifier: GPL-3.0-or-later
// The displays with what a driver, a file or a hurried user can bring.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/whole_kelvra.h"

namespace kelvra::ui {

using sensors::SensorSettings;

class DisplaysTest : public testing::Test, public test::WholeKelvra {
protected:
    // Two sensors in the mode, with slots of 1 ms; the first one is drawn.
    void Begin(sensors::Mode mode) {
        driver.array = {1e-3, 2e-3, 1e-3, 4e-3};
        StartWith(2);
        for (int slot : {0, 1}) {
            SensorSettings settings = Settings(slot);
            settings.Mode = mode;
            settings.TSlotCount = 4;
            settings.TSlotWidth = 0.001;
            settings.ScopeTime = 0.004;
            settings.TrigSource = sensors::InternalTrigger;
            program->windows.edits.Replace(slot, "test", settings);
        }
        if (mode == sensors::Trace) Trace().ShowTSlotMarkers.Toggle();
    }

    SensorSettings& Settings(int slot = 0) { return program->table[slot].settings; }
    forms::ScopeDisp& Trace() { return program->forms.scopeDisp; }
    forms::TimeSlotDisp& Slots() { return program->forms.timeSlotDisp; }
    controls::Grid& Table() { return program->forms.timeSlotTabForm.TimeSlots; }
};

TEST_F(DisplaysTest, AnyArrayAndAnySettingsAreDrawn) {
    Begin(sensors::Trace);
    for (controls::CheckBox* box : {&Trace().ShowPulse, &Trace().chkAddBoundingBox,
                                    &Trace().HoldMaximum, &Trace().HoldMinimum})
        box->Toggle();
    constexpr double none = std::numeric_limits<double>::quiet_NaN(), inf = INFINITY;
    const struct {
        std::vector<double> array;
        double width, time;
        std::int16_t slots;
        std::size_t points, captions;
    } cases[] = {
        {{}, 1e-3, 0.004, 4, 1024, 4},  // no values: zeros
        {{1e-3}, 1e-3, 0.004, 4, 1, 4},
        {{none, inf, -inf, none}, 1e-3, 0.004, 4, 4, 4},
        {std::vector<double>(2000, 1e-3), 1e-3, 0.004, 4, 1024, 4},
        {{1e-3, 2e-3}, 0, 0.004, 4, 2, 4},
        {{1e-3, 2e-3}, -1, 0, 100, 2, 100},
        {{1e-3, 2e-3}, 1e300, 1e300, 0, 2, 0},
        {{1e-3, 2e-3}, 1e-300, -1, -5, 2, 0},
    };
    for (const auto& c : cases) {
        driver.array = c.array;
        Settings().TSlotWidth = c.width;
        Settings().ScopeTime = c.time;
        Settings().TSlotCount = c.slots;
        Measure(1);
        EXPECT_EQ(Trace().Display.Curve().values.size(), c.points) << c.width;
        EXPECT_EQ(Trace().Display.Labels().size(), c.captions) << c.width;
        EXPECT_LT(Trace().Display.ShownAxes().y.min, Trace().Display.ShownAxes().y.max);
    }
}

TEST_F(DisplaysTest, ADragIsOneEditAlsoWhileTracesCome) {
    Begin(sensors::Trace);
    Measure(1);
    program->table[0].settingsChanged = false;
    fake.events.onRound = [this](int round) {
        if (round < 6) Trace().Display.DragCursor(4, 1 + 0.1 * round, 0);  // the first marker
        if (round == 6) Trace().Display.ReleaseCursor(4);
        if (program->state.passes > 8) PressStop();
    };
    PressStart();
    fake.events.onRound = nullptr;
    EXPECT_DOUBLE_EQ(Settings().TSlotWidth, 0.0015);
    EXPECT_DOUBLE_EQ(Trace().Display.CursorAt(5).x, 3);
    EXPECT_EQ(program->forms.setupForm.SensSlotWidth.Text(), "1.5");
    program->forms.mdiMain.EditUndo.Press();
    EXPECT_DOUBLE_EQ(Settings().TSlotWidth, 0.001);
    EXPECT_DOUBLE_EQ(Trace().Display.CursorAt(4).x, 1);
}

TEST_F(DisplaysTest, AnEditedScaleIsSeenAtOnce) {
    for (const bool trace : {true, false}) {
        driver.devices.clear();
        Begin(trace ? sensors::Trace : sensors::TimeSlot);
        Measure(1);
        forms::SetupForm& dialog = program->forms.setupForm;
        const controls::Graph& graph = trace ? Trace().Display : Slots().Display;
        (trace ? dialog.txtMaxScope : dialog.txtMaxTime).Type("12");
        EXPECT_EQ(graph.ShownAxes().y.max, 12) << trace;
        (trace ? dialog.chkAutoScaleScope : dialog.chkAutoScaleTime).Toggle();
        EXPECT_NEAR(graph.ShownAxes().y.max, 10.02, 0.01) << trace;  // the highest is 6.02 dBm
    }
}

TEST_F(DisplaysTest, KeysAndTypedTextsMoveTheChosenCursor) {
    Begin(sensors::Trace);
    Measure(1);
    EXPECT_FALSE(Trace().Display.Nudge(1));
    EXPECT_FALSE(Trace().CursorPosition.enabled);
    Trace().CursorSelect.Choose(Trace().CursorSelect.IndexOfText("Exclusion start"));
    EXPECT_EQ(Trace().CursorPosition.Text(), "0");
    for (const int steps : {10, -1}) Trace().Display.Nudge(steps);  // of a point: 1 ms
    EXPECT_DOUBLE_EQ(Settings().TSlotExclStart, 0);
    Trace().CursorPosition.Type("200 us");
    EXPECT_EQ(Settings().TSlotExclStart, 0);
    Trace().CursorPosition.PressKey("Enter");
    EXPECT_DOUBLE_EQ(Settings().TSlotExclStart, 0.0002);
    EXPECT_EQ(Trace().CursorPosition.Text(), "0.2");
    Trace().CursorPosition.Type("much");
    EXPECT_FALSE(Trace().CursorPosition.fault->empty());
    Trace().CursorPosition.PressKey("Enter");
    EXPECT_DOUBLE_EQ(Settings().TSlotExclStart, 0.0002);
    Trace().CursorSelect.Choose(Trace().CursorSelect.IndexOfText("Trigger level"));
    EXPECT_EQ(Trace().CursorPosition.unitLabel->caption.Get(), "dBm");
    Trace().Display.Nudge(-3);
    EXPECT_DOUBLE_EQ(Settings().TrigLevel, sensors::DefaultSettings().TrigLevel - 0.3);
    Trace().ShowTSlotMarkers.Toggle();
    EXPECT_EQ(Trace().CursorSelect.Count(), 1);
}

TEST_F(DisplaysTest, AHiddenDisplayDrawsNothingAndCatchesUp) {
    Begin(sensors::Trace);
    fake.events.onRound = [this](int round) {
        if (round == 1) Trace().PersonCloses();
        if (program->state.passes > 4) PressStop();
    };
    PressStart();
    fake.events.onRound = nullptr;
    EXPECT_FALSE(Trace().visible);
    EXPECT_TRUE(program->table[0].newTraceData);
    EXPECT_TRUE(Trace().Display.Curve().values.empty());
    program->forms.mdiMain.PersonResizes(15000, 9000);
    EXPECT_TRUE(Trace().visible);
    EXPECT_EQ(Trace().Display.Curve().values.size(), 4U);
}

TEST_F(DisplaysTest, ASensorThatGoesOrChangesItsModeLeavesTheDisplayToTheNext) {
    for (const bool gone : {true, false}) {
        driver.devices.clear();
        Begin(sensors::Trace);
        Measure(1);
        Trace().Scope_Zoom_Button.Press();
        Trace().Display.Zoom({1, 2}, {-30, 10});
        if (gone) {
            driver.devices[0].connected = 0;
            Tick();
        } else {
            program->forms.setupForm.SensMode.Choose(0);
        }
        EXPECT_EQ(Trace().Scope_Sensorselect.Text(), "B") << gone;
        EXPECT_EQ(Trace().Display.Curve().values.size(), gone ? 0U : 4U);  // B has moved to slot 0
        EXPECT_FALSE(Trace().Display.Zoomed());  // into the other sensor's trace
        Trace().Scope_Zoom_Button.Press();
        EXPECT_FALSE(Trace().Display.Zoomed());
    }
}

TEST_F(DisplaysTest, TheTableKeepsThirtyReadingsOfEachSensorsSlots) {
    Begin(sensors::TimeSlot);
    Measure(29);
    EXPECT_EQ(Table().Rows(), 5);
    EXPECT_EQ(Table().At(2, 1).Text(), "3.010");
    EXPECT_EQ(Table().At(2, 2).Text(), "0.000");
    EXPECT_EQ(program->table[1].slotStats[3].Index(), 28);
    // A Start begins the statistics anew, so that they are full only after thirty passes of one
    // run.
    Measure(30);
    EXPECT_EQ(Table().At(2, 4).Text(), "3.010");
    EXPECT_EQ(program->forms.timeSlotTabForm.NumberOfSamples.caption.Get(), "30");
    driver.arrayCount = 2;  // less than there are slots
    Measure(1);
    EXPECT_EQ(Slots().Display.Curve().values.size(), 3U);
    EXPECT_EQ(Table().At(3, 1).Text(), "");
    program->forms.timeSlotTabForm.ResetStat.Press();
    EXPECT_EQ(program->forms.timeSlotTabForm.NumberOfSamples.caption.Get(), "0");
    EXPECT_EQ(Table().At(1, 1).Text(), "");
    EXPECT_EQ(program->table[1].slotStats[0].Index(), 0);
}

}  // namespace kelvra::ui
