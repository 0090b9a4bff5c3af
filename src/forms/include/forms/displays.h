// SPDX-License-Identifier: GPL-3.0-or-later
// The windows that show what one sensor has measured: its trace, its time slots as a graph, and its
// time slots as a table with statistics. What is drawn, and what a drag does, is elsewhere.
#pragma once

#include "controls/graph.h"
#include "forms/kinds.h"

namespace kelvra::forms {

using controls::Graph;

struct ScopeDisp : Window {
    explicit ScopeDisp(controls::Changes& changes)
        : Window(changes, "ScopeDisp", "Scope Display", {5640, 60, 9000, 4200}) {
        PulseFrame.visible = false;
        HoldMaximum.tooltip = "Keeps the largest value of each point of the traces from now on";
        HoldMinimum.tooltip = "Keeps the smallest value of each point of the traces from now on";
        KeepReference.tooltip = "Keeps this trace for comparison";
        DropReference.tooltip = "Removes the reference";
        ShowPulse.tooltip = "Shows the readings of the trace's pulse beside it";
        chkAddBoundingBox.tooltip =
            "Draws a box around the part of the trace that counts in the exclusion lines' slot";
        DropReference.enabled = false;
    }

    Label lblSensor{*this, "lblSensor", "Sensor"};
    List Scope_Sensorselect{*this, "Scope_Sensorselect", {}, -1, {.name = "Sensor"}};
    Button Scope_Zoom_Button{*this, "Scope_Zoom_Button", "", "zoomPic", {.name = "Zoom"}};
    CheckBox ShowTSlotMarkers{*this, "ShowTSlotMarkers", "Show timeslot markers"};
    CheckBox chkAddBoundingBox{*this, "chkAddBoundingBox", "Add bounding box"};
    CheckBox ShowPulse{*this, "ShowPulse", "Pulse readings"};
    CheckBox HoldMaximum{*this, "HoldMaximum", "Hold maximum"};
    CheckBox HoldMinimum{*this, "HoldMinimum", "Hold minimum"};
    Button KeepReference{*this, "KeepReference", "Keep as reference"};
    Button DropReference{*this, "DropReference", "Drop reference"};
    ListField CursorSelect{*this,
                           "CursorSelect",
                           {.label = "lblCursorSelect",
                            .caption = "Cursor",
                            .explanation = "The cursor that the arrow keys move"}};
    TextField CursorPosition{
        *this,
        "CursorPosition",
        {.label = "lblCursorPosition",
         .unit = "ms",
         .name = "Cursor position",
         .explanation = "Where the chosen cursor is; a typed position moves it there"}};
    Label lblPointed{*this, "lblPointed"};  // what is under the mouse, or being dragged
    Graph Display{*this,
                  "Display",
                  {.xTitle = "Time (ms)", .yTitle = "Power (dBm)", .name = "Power over time"}};
    Frame PulseFrame{*this, "PulseFrame", "", {0, 0, 3000, 4200}};
    Grid PulseReadings{PulseFrame, "PulseReadings", 13, 2, {.name = "Pulse readings"}};
    MenuItem TraceMenu{*this, "TraceMenu", "Trace"};
    MenuItem CopyTraceData{TraceMenu, "CopyTraceData", "Copy data", {.mnemonic = 'D'}};
    MenuItem SaveTraceData{TraceMenu, "SaveTraceData", "Save data", {.mnemonic = 'a'}};
};

struct TimeSlotDisp : Window {
    explicit TimeSlotDisp(controls::Changes& changes)
        : Window(changes, "TimeSlotDisp", "Time Slot Display", {5640, 4320, 9000, 4200}) {}

    Label lblSensor{*this, "lblSensor", "Sensor"};
    List Timeslot_Sensorselect{*this, "Timeslot_Sensorselect", {}, -1, {.name = "Sensor"}};
    Label lblPointed{*this, "lblSlotPointed"};  // the slot under the mouse
    Graph Display{*this,
                  "Display",
                  {.xTitle = "Time slot",
                   .yTitle = "Power (dBm)",
                   .stairs = true,
                   .name = "Power of each time slot"}};
    MenuItem SlotMenu{*this, "SlotMenu", "Time slots"};
    MenuItem CopySlotData{SlotMenu, "CopySlotData", "Copy data", {.mnemonic = 'D'}};
    MenuItem SaveSlotData{SlotMenu, "SaveSlotData", "Save data", {.mnemonic = 'a'}};
};

struct TimeSlotTabForm : Window {
    explicit TimeSlotTabForm(controls::Changes& changes)
        : Window(changes, "TimeSlotTabForm", "Time Slot Table", {60, 4320, 5520, 4200}) {}

    Frame MainFrame{*this, "MainFrame", "", {0, 0, 5520, 4200}};
    Label lblNumberOfSamples{MainFrame, "lblNumberOfSamples", "Number of samples:"};
    Label NumberOfSamples{MainFrame, "NumberOfSamples", "0"};
    Button ResetStat{MainFrame, "ResetStat", "Reset statistics"};
    Grid TimeSlots{MainFrame, "TimeSlots", 9, 6, {.name = "Time slots"}};
};

}  // namespace kelvra::forms
