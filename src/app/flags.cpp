// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/flags.h"

namespace kelvra::app {

namespace {

FlagValue Whole(std::int64_t value) {
    return value;
}

constexpr Flag AllFlags[] = {
    {"Measuring", [](const Kelvra& k) -> FlagValue { return k.state.Measuring; }},
    {"StopRequested", [](const Kelvra& k) -> FlagValue { return k.state.StopRequested; }},
    {"SimulationMode", [](const Kelvra& k) -> FlagValue { return k.table.SimulationMode; }},
    {"ScopeModeActive", [](const Kelvra& k) -> FlagValue { return k.state.ScopeModeActive; }},
    {"TimeSlotModeActive", [](const Kelvra& k) -> FlagValue { return k.state.TimeSlotModeActive; }},
    {"DeviceTableChanged", [](const Kelvra& k) -> FlagValue { return k.table.DeviceTableChanged; }},
    {"ConfigRunning", [](const Kelvra& k) -> FlagValue { return k.session.ConfigRunning; }},
    {"ReconnectPrompt", [](const Kelvra& k) -> FlagValue { return k.session.ReconnectPrompt; }},
    {"ErrorShown", [](const Kelvra& k) -> FlagValue { return k.session.ErrorShown; }},
    {"SessionClosed", [](const Kelvra& k) -> FlagValue { return k.session.SessionClosed; }},
    {"SensorSlotCount", [](const Kelvra& k) { return Whole(k.table.SensorSlotCount); }},
    {"CurrentSensor", [](const Kelvra& k) { return Whole(k.table.CurrentSensor); }},
    {"instrumentHandle", [](const Kelvra& k) { return Whole(k.session.instrumentHandle); }},
    {"RecordInterval", [](const Kelvra& k) { return Whole(k.state.RecordInterval); }},
    {"Passes", [](const Kelvra& k) { return Whole(k.state.Passes); }},
};

}  // namespace

std::span<const Flag> Flags() {
    return AllFlags;
}

}  // namespace kelvra::app
