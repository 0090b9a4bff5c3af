// SPDX-License-Identifier: GPL-3.0-or-later
// The windows that show what one sensor has measured: its trace, its time slots as a graph, and its
// time slots as a table with statistics. What is drawn, and what a drag does, is elsewhere.
#pragma once

#include "controls/graph.h"
#include "controls/grid.h"
#include "controls/kinds.h"
#include "controls/list.h"

namespace kelvra::forms {

struct ScopeDisp : controls::Window {
    explicit ScopeDisp(controls::Changes& changes)
        : Window(changes, "ScopeDisp", "Scope Display", {5640, 60, 9000, 4200}) {}

    controls::Label lblSensor{*this, "lblSensor", "Sensor"};
    controls::List Scope_Sensorselect{*this, "Scope_Sensorselect"};
    controls::Button Scope_Zoom_Button{*this, "Scope_Zoom_Button", "", "zoomPic", {.name = "Zoom"}};
    controls::CheckBox ShowTSlotMarkers{*this, "ShowTSlotMarkers", "Show timeslot markers"};
    controls::CheckBox chkAddBoundingBox{*this, "chkAddBoundingBox", "Add bounding box"};
    controls::Graph Display{*this, "Display"};
};

struct TimeSlotDisp : controls::Window {
    explicit TimeSlotDisp(controls::Changes& changes)
        : Window(changes, "TimeSlotDisp", "Time Slot Display", {5640, 4320, 9000, 4200}) {}

    controls::Label lblSensor{*this, "lblSensor", "Sensor"};
    controls::List Timeslot_Sensorselect{*this, "Timeslot_Sensorselect"};
    controls::Graph Display{*this, "Display"};
};

struct TimeSlotTabForm : controls::Window {
    explicit TimeSlotTabForm(controls::Changes& changes)
        : Window(changes, "TimeSlotTabForm", "Time Slot Table", {60, 4320, 5520, 4200}) {}

    controls::Frame MainFrame{*this, "MainFrame", "", {0, 0, 5520, 4200}};
    controls::Label lblNumberOfSamples{MainFrame, "lblNumberOfSamples", "Number of samples:"};
    controls::Label NumberOfSamples{MainFrame, "NumberOfSamples", "0"};
    controls::Button ResetStat{MainFrame, "ResetStat", "Reset statistics"};
    controls::Grid TimeSlots{MainFrame, "TimeSlots", 9, 6, {.name = "Time slots"}};
};

}  // namespace kelvra::forms
