// SPDX-License-Identifier: GPL-3.0-or-later
#include "conflicts.h"

namespace kelvra::virtual_sensors {
namespace {

constexpr double ShortestSlot = 1e-9;    // s, what the excluded times must leave
constexpr double LongestFrame = 10;      // s, of all time slots together
constexpr double PointDistance = 10e-9;  // s, the shortest
constexpr double LongestMemory = 5;      // s before the trigger

bool NothingLeft(const SettingValues& s, const Model&) {
    const double excluded = s[Setting::ExcludeStart] + s[Setting::ExcludeStop];
    return ModeOf(s) == Mode::Slots && s[Setting::SlotWidth] - excluded < ShortestSlot;
}

bool FrameTooLong(const SettingValues& s, const Model&) {
    const double frame = s[Setting::SlotCount] * s[Setting::SlotWidth];
    return ModeOf(s) == Mode::Slots && frame > LongestFrame;
}

bool PointsTooClose(const SettingValues& s, const Model&) {
    const double distance = s[Setting::psdrv_scope_setTime] / s[Setting::psdrv_scope_setPoints];
    return ModeOf(s) == Mode::Trace && distance < PointDistance;
}

bool TraceTooEarly(const SettingValues& s, const Model&) {
    const double begin = s[Setting::psdrv_trigger_setDelay] + s[Setting::psdrv_scope_setOffsetTime];
    return ModeOf(s) == Mode::Trace && begin < -LongestMemory;
}

// The level that the signal has to reach between two triggers can't be measured.
bool HysteresisTooLarge(const SettingValues& s, const Model& model) {
    const double hysteresis = s[Setting::psdrv_trigger_setHysteresis];
    const bool rising = !s.IsOn(Setting::psdrv_trigger_setSlope);
    const double level =
        DbmOf(s[Setting::psdrv_trigger_setLevel]) + (rising ? -hysteresis : hysteresis);
    return model.timeResolving && SourceOf(s) == TriggerSource::Internal && !model.Measures(level);
}

constexpr struct {
    Status status;
    bool (*broken)(const SettingValues&, const Model&);
} Rules[] = {
    {Status::NothingLeftOfSlot, NothingLeft},         {Status::FrameTooLong, FrameTooLong},
    {Status::PointsTooClose, PointsTooClose},         {Status::TraceTooEarly, TraceTooEarly},
    {Status::HysteresisTooLarge, HysteresisTooLarge},
};

}  // namespace

Status FindConflict(const SettingValues& settings, const Model& model) {
    for (const auto& rule : Rules) {
        if (rule.broken(settings, model)) return rule.status;
    }
    return Status::Ok;
}

}  // namespace kelvra::virtual_sensors
