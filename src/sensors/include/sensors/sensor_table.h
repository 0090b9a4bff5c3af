// SPDX-License-Identifier: GPL-3.0-or-later
// The table of sensor slots that the whole application shares, and what belongs to a slot besides
// its entry: display limits and the latest readings. Channel = slot index + 1.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/files.h"
#include "sensors/sensor_entry.h"

namespace kelvra::sensors {

// Limits of the displays' vertical axes for one slot, in dBm.
struct DisplayScaling {
    bool autoScaleScope = false;
    bool autoScaleTime = false;
    double minScope = -65;
    double maxScope = 5;
    double minTime = -65;
    double maxTime = 5;
};

struct SensorTable {
    static constexpr std::int16_t DefaultSlotCount = 8;

    // Slots 0 .. SensorSlotCount - 1 and one spare element, which is always empty.
    std::vector<SensorEntry> entries;
    std::int16_t sensorSlotCount = 0;
    std::int16_t currentSensor = 0;
    bool simulationMode = false;

    bool deviceTableChanged = false;  // asks discovery to switch sensors on and refresh the lists

    std::vector<DisplayScaling> scaling;  // one for each place of the device list, or more
    std::vector<std::array<double, 2>> slotReadings;  // latest scalar reading: W, dBm

    // The slots in use, without the spare element.
    int Slots() const { return sensorSlotCount; }
    SensorEntry& operator[](int slot) { return entries[static_cast<std::size_t>(slot)]; }
    const SensorEntry& operator[](int slot) const {
        return entries[static_cast<std::size_t>(slot)];
    }

    // The connected or simulated sensors, in the order of their slots.
    std::vector<SensorEntry*> Present();

    // Resizes the table to that many slots (1 .. 32767): existing elements are kept, new ones are
    // set up. Does nothing while the table is locked; that is an error of the caller, and a debug
    // build stops.
    void Resize(int slots);
    void ResizeScaling(int elements);

    // Exchanges everything that belongs to the two slots; CurrentSensor follows its sensor.
    void SwapSlots(int a, int b);

    // Whether the user has switched this sensor off in this run.
    bool SwitchedOff(const SensorEntry& entry) const;
    void RememberSwitch(const SensorEntry& entry);

    // When the sensor was last zeroed in this run, in local time. Nothing if it was not, or not to
    // the end.
    std::optional<platform::LocalTime> ZeroedAt(const SensorEntry& entry) const;
    void NoteZeroed(const SensorEntry& entry, std::optional<platform::LocalTime> at);

private:
    friend class TableLock;

    std::set<std::string> switchedOff_;                    // keys
    std::map<std::string, platform::LocalTime> zeroedAt_;  // by key
    int locks_ = 0;
};

// Holds the table against resizing while an entry is handed to other routines by reference.
class TableLock {
public:
    explicit TableLock(SensorTable& table) : table_(table) { ++table_.locks_; }
    ~TableLock() { --table_.locks_; }
    TableLock(const TableLock&) = delete;
    TableLock& operator=(const TableLock&) = delete;

private:
    SensorTable& table_;
};

// Prepares the slot's working arrays for its mode: time slot statistics (time slot mode), the ring
// of readings (continuous average, burst). The other modes have none.
void PrepareWorkArrays(SensorTable& table, int slot);

// Call after the slot's mode has changed: drops the results of the former mode and prepares the
// working arrays.
void ChangeMode(SensorTable& table, int slot);

// Frees the slot.
void ReleaseSlot(SensorEntry& entry);

}  // namespace kelvra::sensors
