// SPDX-License-Identifier: GPL-3.0-or-later
// One sensor position, connected, simulated or free: what belongs to the sensor that is there, and
// what stays with the position.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "sensors/reading_ring.h"
#include "sensors/sensor_settings.h"
#include "sensors/settings_fields.h"

namespace kelvra::sensors {

// From the appearance of a sensor until it goes: who it is and what has been measured with it.
struct SensorPresence {
    std::string resourceName{};  // driver resource descriptor; empty: the slot is free
    bool present = false;
    bool sessionOpen = false;  // its channel is open in the driver session
    bool enabled = false;      // takes part in measurements
    bool newSlotData = false;
    bool newTraceData = false;
    bool slotStatsActive = false;
    std::string logicalName{};
    std::string givenName{};  // by the user; empty: the device list names it, or its slot
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
    std::string lastErrorText{};  // of its opening and its last transfer
    std::string initiateError{};  // empty: the last call was good; likewise the next
    std::string fetchError{};
    bool triggerNowRequest = false;
};

// The model, "PS-101": of a simulated sensor, which has no id, its resource says it.
std::string_view TypeOf(const SensorPresence& sensor);

// All that is wrong with the sensor, empty when nothing is; no line break at the end.
std::string ErrorOf(const SensorPresence& sensor);

struct SensorEntry : SensorPresence {
    SensorSettings settings = DefaultSettings();  // until the next sensor's are read
    std::int16_t slotTriggerCursor = 0;           // how many the display shows
    std::int16_t traceTriggerCursor = 0;

    // Nothing is left of the presence before, except for how many time slots there are: they are
    // counted by the settings, and start anew.
    void Begin(SensorPresence presence);
};

}  // namespace kelvra::sensors
