// SPDX-License-Identifier: GPL-3.0-or-later
// The cursors of the trace display: which index each one has, where it is, and what a drag does to
// the settings. All positions are those of the graph: ms and dBm; 0 ms is the trigger.
#pragma once

#include <string>

#include "controls/graph.h"
#include "sensors/sensor_settings.h"

namespace kelvra::ui {

constexpr double LevelStep = 0.1;  // dB, by which keys move a level

// Slot marker k (1 .. TSlotCount), at the end of slot k, has the index TrigDelayCursor + k.
enum TraceCursor : int {
    TrigLevelCursor = 0,
    ExclStartCursor = 1,
    ExclStopCursor = 2,
    TrigDelayCursor = 3,
};

// The slot in which the exclusion lines are drawn, from 0, always one of the slots.
int ExclusionSlot(const sensors::SensorSettings& settings);

// Between the exclusion lines (ms), whether they are shown or not.
controls::Graph::Axis ExclusionZone(const sensors::SensorSettings& settings);

// Places all cursors of a sensor with these settings. The trigger level is shown for the internal
// trigger only, the others if `slots`.
void PlaceCursors(controls::Graph& graph, const sensors::SensorSettings& settings, bool slots);

// The settings after the cursor has been dragged to a position. Exclusions leave at least 10 us of
// a slot, and a slot is at least that wide. A position that gives no finite setting changes
// nothing.
sensors::SensorSettings AfterDrag(const sensors::SensorSettings& before, int cursor, double x,
                                  double y);

// What the cursor sets, and the value that it sets, with the unit: "exclusion start", 1.25, "ms".
struct CursorValue {
    std::string what;
    double value = 0;
    const char* unit = "ms";
};
CursorValue ValueOf(const sensors::SensorSettings& settings, int cursor);

}  // namespace kelvra::ui
