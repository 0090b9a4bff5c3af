// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flags.h"

namespace kelvra::app {

namespace {

FlagValue Whole(std::int64_t value) {
    return value;
}

FlagValue Cursor(const Kelvra& kelvra, ui::TraceCursor cursor) {
    return Whole(kelvra.windows.traceDisplay.ShownIndex(cursor));
}

constexpr Flag AllFlags[] = {
    {"Measuring", [](const Kelvra& k) -> FlagValue { return k.state.measuring; }},
    {"StopRequested", [](const Kelvra& k) -> FlagValue { return k.state.stopRequested; }},
    {"SimulationMode", [](const Kelvra& k) -> FlagValue { return k.table.simulationMode; }},
    {"ScopeModeActive", [](const Kelvra& k) -> FlagValue { return k.state.traceModeActive; }},
    {"TimeSlotModeActive", [](const Kelvra& k) -> FlagValue { return k.state.timeSlotModeActive; }},
    {"DeviceTableChanged", [](const Kelvra& k) -> FlagValue { return k.table.deviceTableChanged; }},
    {"ConfigRunning", [](const Kelvra& k) -> FlagValue { return k.session.configRunning; }},
    {"ReconnectPrompt", [](const Kelvra& k) -> FlagValue { return k.session.reconnectPrompt; }},
    {"ErrorShown", [](const Kelvra& k) -> FlagValue { return k.windows.errorStrip.ErrorShown(); }},
    {"SessionClosed", [](const Kelvra& k) -> FlagValue { return k.session.sessionClosed; }},
    {"ScopeZoomed", [](const Kelvra& k) -> FlagValue { return k.windows.traceDisplay.Zoomed(); }},
    {"ScopeScalingShown",
     [](const Kelvra& k) -> FlagValue { return k.windows.setupDialog.TraceScaleShown(); }},
    {"TimeScalingShown",
     [](const Kelvra& k) -> FlagValue { return k.windows.setupDialog.TimeSlotScaleShown(); }},
    {"SensorSlotCount", [](const Kelvra& k) { return Whole(k.table.sensorSlotCount); }},
    {"CurrentSensor", [](const Kelvra& k) { return Whole(k.table.currentSensor); }},
    {"instrumentHandle", [](const Kelvra& k) { return Whole(k.session.instrumentHandle); }},
    {"RecordInterval", [](const Kelvra& k) { return Whole(k.state.recordInterval); }},
    {"TrigLevelCursor", [](const Kelvra& k) { return Cursor(k, ui::TrigLevelCursor); }},
    {"TrigDelayCursor", [](const Kelvra& k) { return Cursor(k, ui::TrigDelayCursor); }},
    {"ExclStartCursor", [](const Kelvra& k) { return Cursor(k, ui::ExclStartCursor); }},
    {"ExclStopCursor", [](const Kelvra& k) { return Cursor(k, ui::ExclStopCursor); }},
    {"Passes", [](const Kelvra& k) { return Whole(k.state.passes); }},
};

}  // namespace

std::span<const Flag> Flags() {
    return AllFlags;
}

}  // namespace kelvra::app
