// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensors/sensor_table.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "util/text.h"

namespace kelvra::sensors {

void SensorTable::Resize(int slots) {
    assert(locks_ == 0);
    if (locks_ != 0 || slots < 1 || slots > INT16_MAX) return;
    const auto elements = static_cast<std::size_t>(slots) + 1;
    entries.resize(elements);
    entries.back() = SensorEntry();
    slotReadings.resize(elements);
    sensorSlotCount = static_cast<std::int16_t>(slots);
    if (currentSensor >= sensorSlotCount) currentSensor = 0;
}

void SensorTable::ResizeScaling(int elements) {
    scaling.resize(static_cast<std::size_t>(std::max(elements, 0)));
}

void SensorTable::SwapSlots(int a, int b) {
    const auto first = static_cast<std::size_t>(a);
    const auto second = static_cast<std::size_t>(b);
    std::swap(entries[first], entries[second]);
    if (scaling.size() <= std::max(first, second)) scaling.resize(std::max(first, second) + 1);
    std::swap(scaling[first], scaling[second]);
    std::swap(slotReadings[first], slotReadings[second]);
    if (currentSensor == a)
        currentSensor = static_cast<std::int16_t>(b);
    else if (currentSensor == b)
        currentSensor = static_cast<std::int16_t>(a);
}

std::vector<SensorEntry*> SensorTable::Present() {
    std::vector<SensorEntry*> present;
    for (int slot = 0; slot < Slots(); ++slot)
        if ((*this)[slot].present) present.push_back(&(*this)[slot]);
    return present;
}

bool SensorTable::SwitchedOff(const SensorEntry& entry) const {
    return switchedOff_.count(KeyOf(entry)) != 0;
}

void SensorTable::RememberSwitch(const SensorEntry& entry) {
    if (entry.enabled)
        switchedOff_.erase(KeyOf(entry));
    else
        switchedOff_.insert(KeyOf(entry));
}

std::optional<platform::LocalTime> SensorTable::ZeroedAt(const SensorEntry& entry) const {
    const auto found = zeroedAt_.find(KeyOf(entry));
    return found == zeroedAt_.end() ? std::nullopt : std::optional(found->second);
}

void SensorTable::NoteZeroed(const SensorEntry& entry, std::optional<platform::LocalTime> at) {
    if (at)
        zeroedAt_.insert_or_assign(KeyOf(entry), *at);
    else
        zeroedAt_.erase(KeyOf(entry));
}

void PrepareWorkArrays(SensorTable& table, int slot) {
    SensorEntry& entry = table[slot];
    switch (entry.settings.Mode) {
        case TimeSlot:
            entry.slotStats.assign(
                static_cast<std::size_t>(std::max<int>(entry.settings.TSlotCount, 1)), {});
            break;
        case ContinuousAverage:
        case Burst:
            entry.history.Reset();
            break;
        default:
            break;
    }
}

void ChangeMode(SensorTable& table, int slot) {
    SensorEntry& entry = table[slot];
    entry.results.clear();
    entry.newSlotData = entry.newTraceData = false;
    PrepareWorkArrays(table, slot);
}

std::string ErrorOf(const SensorPresence& sensor) {
    std::string all = sensor.lastErrorText;
    for (const std::string& error : {sensor.initiateError, sensor.fetchError, sensor.pointsError})
        if (!error.empty()) all += error + "\r\n";
    return std::string(util::TrimLineBreaks(all));
}

const std::string& KeyOf(const SensorPresence& sensor) {
    return sensor.sensorId.empty() ? sensor.resourceName : sensor.sensorId;
}

std::string_view TypeOf(const SensorPresence& sensor) {
    const std::string_view id = KeyOf(sensor);
    return id.substr(0, id.find(';'));
}

bool MeasuresIn(const SensorEntry& entry, std::int32_t mode) {
    return entry.present && entry.enabled && entry.settings.Mode == mode;
}

void SensorEntry::Begin(SensorPresence presence) {
    presence.slotStats.assign(slotStats.size(), {});
    static_cast<SensorPresence&>(*this) = std::move(presence);
}

void ReleaseSlot(SensorEntry& entry) {
    entry.Begin({});
}

}  // namespace kelvra::sensors
