// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensors/sensor_table.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace kelvra::sensors {

void SensorTable::Resize(int slots) {
    assert(locks == 0);
    if (locks != 0 || slots < 1 || slots > INT16_MAX) return;
    const auto elements = static_cast<std::size_t>(slots) + 1;
    Sensors.resize(elements);
    Sensors.back() = SensorEntry();
    SlotReadings.resize(elements);
    SensorSlotCount = static_cast<std::int16_t>(slots);
    if (CurrentSensor >= SensorSlotCount) CurrentSensor = 0;
}

void SensorTable::ResizeScaling(int elements) {
    Scaling.resize(static_cast<std::size_t>(std::max(elements, 0)));
}

void SensorTable::SwapSlots(int a, int b) {
    const auto first = static_cast<std::size_t>(a);
    const auto second = static_cast<std::size_t>(b);
    std::swap(Sensors[first], Sensors[second]);
    if (Scaling.size() <= std::max(first, second)) Scaling.resize(std::max(first, second) + 1);
    std::swap(Scaling[first], Scaling[second]);
    std::swap(SlotReadings[first], SlotReadings[second]);
    if (CurrentSensor == a)
        CurrentSensor = static_cast<std::int16_t>(b);
    else if (CurrentSensor == b)
        CurrentSensor = static_cast<std::int16_t>(a);
}

std::vector<SensorEntry*> SensorTable::Present() {
    std::vector<SensorEntry*> present;
    for (int slot = 0; slot < Slots(); ++slot)
        if ((*this)[slot].Present) present.push_back(&(*this)[slot]);
    return present;
}

int SensorTable::FindMeasured(std::string_view logicalName) const {
    for (int slot = 0; slot < Slots(); ++slot) {
        const SensorEntry& entry = (*this)[slot];
        if (entry.Present && entry.Enabled && entry.LogicalName == logicalName) return slot;
    }
    return -1;
}

namespace {

const std::string& SwitchKey(const SensorEntry& entry) {
    return entry.SensorId.empty() ? entry.ResourceName : entry.SensorId;
}

}  // namespace

bool SensorTable::SwitchedOff(const SensorEntry& entry) const {
    return switchedOff_.count(SwitchKey(entry)) != 0;
}

void SensorTable::RememberSwitch(const SensorEntry& entry) {
    if (entry.Enabled)
        switchedOff_.erase(SwitchKey(entry));
    else
        switchedOff_.insert(SwitchKey(entry));
}

void PrepareWorkArrays(SensorTable& table, int slot) {
    SensorEntry& entry = table[slot];
    switch (entry.Settings.Mode) {
        case TimeSlot:
            entry.TSlotStats.assign(
                static_cast<std::size_t>(std::max<int>(entry.Settings.TSlotCount, 1)), {});
            entry.TSlotStatsFull = false;
            break;
        case ContinuousAverage:
        case Burst:
            entry.History.Reset();
            break;
        default:
            break;
    }
}

void ReleaseSlot(SensorEntry& entry) {
    entry.Enabled = false;
    entry.SessionOpen = false;
    entry.Present = false;
    entry.LogicalName.clear();
    entry.ResourceName.clear();
    entry.SensorId.clear();
    // What was measured and reported is that sensor's; whoever takes the slot next starts clean.
    entry.MeasPending = 0;
    entry.WaitTicks = 0;
    entry.LastReading = 0;
    entry.Results.clear();
    entry.History.Reset();
    entry.AvgCountRead = 0;
    entry.SettingsChanged = false;
    entry.LastErrorText.clear();
    entry.TriggerNowRequest = false;
}

}  // namespace kelvra::sensors
