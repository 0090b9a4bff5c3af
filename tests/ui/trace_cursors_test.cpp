// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/trace_cursors.h"

#include <gtest/gtest.h>

#include "sensors/settings_fields.h"
#include "ui/level_axis.h"

namespace kelvra::ui {
namespace {

using sensors::SensorSettings;

// Four slots of 2 ms; the exclusion lines are in the second one.
SensorSettings FourSlots() {
    SensorSettings settings = sensors::DefaultSettings();
    settings.TSlotCount = 4;
    settings.TSlotWidth = 0.002;
    settings.TSlotExclDispInSlot = 1;
    settings.TSlotExclStart = 0.0003;
    settings.TSlotExclStop = 0.0005;
    settings.TrigDelay = 0.001;
    settings.ScopeOffset = -0.004;
    settings.TrigLevel = -30;
    return settings;
}

TEST(TraceCursors, ADragSetsWhatTheCursorMarksWithinItsLimits) {
    const auto slot = [](int k) { return TrigDelayCursor + k; };
    // clang-format off
    const struct {
        int cursor;
        double x, y;
        double level, width, start, stop, delay, offset;  // dBm, then s
    } cases[] = {
        // cursor          x (ms)     y       level  width    start     stop      delay    offset
        {TrigLevelCursor,  9,         -21.26, -21.3, 0.002,   0.0003,   0.0005,   0.001,   -0.004},
        {ExclStartCursor,  2.5,       0,      -30,   0.002,   0.0005,   0.0005,   0.001,   -0.004},
        {ExclStartCursor,  1,         0,      -30,   0.002,   0,        0.0005,   0.001,   -0.004},
        {ExclStartCursor,  3.9,       0,      -30,   0.002,   0.00149,  0.0005,   0.001,   -0.004},
        {ExclStartCursor,  2.5000004, 0,      -30,   0.002,   0.0005,   0.0005,   0.001,   -0.004},
        {ExclStopCursor,   3.9,       0,      -30,   0.002,   0.0003,   0.0001,   0.001,   -0.004},
        {ExclStopCursor,   5,         0,      -30,   0.002,   0.0003,   0,        0.001,   -0.004},
        {ExclStopCursor,   0,         0,      -30,   0.002,   0.0003,   0.00169,  0.001,   -0.004},
        {TrigDelayCursor,  0.25,      0,      -30,   0.002,   0.0003,   0.0005,   0.00125, -0.00425},
        {TrigDelayCursor,  -1,        0,      -30,   0.002,   0.0003,   0.0005,   0,       -0.003},
        {slot(2),          3,         0,      -30,   0.0015,  0.0003,   0.0005,   0.001,   -0.004},
        {slot(1),          0.5,       0,      -30,   0.0005,  0.000145, 0.000345, 0.001,   -0.004},
        {slot(1),          0.1,       0,      -30,   0.0001,  0,        0.00009,  0.001,   -0.004},
        {TrigDelayCursor,  1e308,     0,      -30,   0.002,   0.0003,   0.0005,   0.001,   -0.004},
        {TrigLevelCursor,  0,         1e308,  -30,   0.002,   0.0003,   0.0005,   0.001,   -0.004},
        {slot(4),          -8,        0,      -30,   0.00001, 0,        0,        0.001,   -0.004},
    };
    // clang-format on
    constexpr double near = 1e-12;
    for (const auto& c : cases) {
        const SensorSettings got = AfterDrag(FourSlots(), c.cursor, c.x, c.y);
        const std::string which = std::to_string(c.cursor) + " to " + std::to_string(c.x);
        EXPECT_NEAR(got.TrigLevel, c.level, near) << which;
        EXPECT_NEAR(got.TSlotWidth, c.width, near) << which;
        EXPECT_NEAR(got.TSlotExclStart, c.start, near) << which;
        EXPECT_NEAR(got.TSlotExclStop, c.stop, near) << which;
        EXPECT_NEAR(got.TrigDelay, c.delay, near) << which;
        EXPECT_NEAR(got.ScopeOffset, c.offset, near) << which;
    }
}

TEST(TraceCursors, EachIsPlacedByTheSettingsAndMarkersGoWithTheSlots) {
    controls::Changes changes;
    controls::Window window(changes, "W", "", {});
    controls::Graph graph(window, "G");
    SensorSettings settings = FourSlots();
    settings.TrigSource = sensors::InternalTrigger;
    PlaceCursors(graph, settings, true);
    const double x[] = {0, 2.3, 3.5, 0, 2, 4, 6, 8};
    ASSERT_EQ(graph.CursorCount(), 8);
    for (int cursor = 0; cursor < graph.CursorCount(); ++cursor) {
        EXPECT_TRUE(graph.CursorAt(cursor).visible) << cursor;
        EXPECT_DOUBLE_EQ(graph.CursorAt(cursor).x, x[cursor]) << cursor;
    }
    EXPECT_EQ(graph.CursorAt(TrigLevelCursor).y, -30);
    settings.TrigSource = sensors::ImmediateTrigger;
    PlaceCursors(graph, settings, false);
    ASSERT_EQ(graph.CursorCount(), 4);
    for (int cursor = 0; cursor < 4; ++cursor) EXPECT_FALSE(graph.CursorAt(cursor).visible);
}

TEST(LevelAxis, EndsAboveTheHighestLevelWhereItRoundsToAMultipleOfFive) {
    const struct {
        double highest, end;
    } cases[] = {{-12.3, -10.3}, {-10, -5}, {-10.6, -9.6}, {4.4, 5.4}, {0, 5}, {-970, -965}};
    for (const auto& c : cases) {
        const controls::Graph::Axis axis = AutomaticAxis(c.highest);
        EXPECT_NEAR(axis.max, c.end, 1e-9) << c.highest;
        EXPECT_NEAR(axis.min, c.end - 70, 1e-9) << c.highest;
    }
}

}  // namespace
}  // namespace kelvra::ui
