// SPDX-License-Identifier: GPL-3.0-or-later
// One sensor slot, connected, simulated or free: what belongs to the sensor in it, and what stays
// with the slot.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sensors/reading_ring.h"
#include "sensors/sensor_settings.h"
#include "sensors/settings_fields.h"

namespace kelvra::sensors {

// What lasts from the appearance of a sensor until it goes: its identity and its measurements.
struct SensorPresence {
    std::string resourceName{};  // driver resource descriptor; empty: the slot is free
    bool present = false;
    bool sessionOpen = false;  // its channel is open in the driver session
    bool enabled = false;      // takes part in measurements
    bool newSlotData = false;
    bool newTraceData = false;
    bool slotStatsActive = false;
    std::string logicalName{};
    // By the user; empty: its slot names it; nothing: the device list does.
    std::optional<std::string> givenName{};
    bool namedBySlot = false;
    std::string sensorId{};         // type, ";", serial number
    std::int32_t measPending = 0;   // 1: started and not yet complete
    std::int16_t waitTicks = 0;     // length of the activity bar, 0 .. 8
    double lastReading = 0;         // W
    std::vector<double> results{};  // W, of the latest array measurement
    ReadingRing history{};
    std::vector<ReadingRing> slotStats{};  // one for each time slot
    std::int32_t avgCountRead = 0;
    bool settingsChanged = false;
    std::string lastErrorText{};  // from its opening and its last transfer
    std::string initiateError{};  // empty: the last such call succeeded; likewise fetchError
    std::string fetchError{};
    std::string pointsError{};  // the trace has too many points
    bool triggerNowRequest = false;
};

// What the sensor is known by for this run, wherever it is plugged in: its id. A simulated sensor
// has none; it is known by its resource.
const std::string& KeyOf(const SensorPresence& sensor);

// The model, "PS-101".
std::string_view TypeOf(const SensorPresence& sensor);

// All errors of the sensor, empty if there are none; no line break at the end.
std::string ErrorOf(const SensorPresence& sensor);

struct SensorEntry : SensorPresence {
    SensorSettings settings = DefaultSettings();  // until the next sensor's are read
    std::int16_t slotTriggerCursor = 0;           // how many the display shows
    std::int16_t traceTriggerCursor = 0;

    // Replaces the former presence. Only the number of time slots stays, which the settings
    // determine; their statistics start anew.
    void Begin(SensorPresence presence);
};

// It takes part in measurements, in this mode.
bool MeasuresIn(const SensorEntry& entry, std::int32_t mode);

}  // namespace kelvra::sensors
