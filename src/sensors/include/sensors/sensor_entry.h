// SPDX-License-Identifier: GPL-3.0-or-later
// One sensor position, connected, simulated or free: who the sensor is, its settings, and the
// working state of the measurement.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sensors/reading_ring.h"
#include "sensors/sensor_settings.h"
#include "sensors/settings_fields.h"

namespace kelvra::sensors {

struct SensorEntry {
    std::string resourceName;  // driver resource descriptor; empty: the slot is free
    bool present = false;
    bool sessionOpen = false;  // its channel is open in the driver session
    bool enabled = false;      // takes part in measurements
    bool newSlotData = false;
    bool newTraceData = false;
    bool slotStatsActive = false;
    std::string logicalName;
    std::string sensorId;          // type, ";", serial number
    std::int32_t measPending = 0;  // 1: started and not yet complete
    std::int16_t waitTicks = 0;    // length of the activity bar, 0 .. 8
    double lastReading = 0;        // W
    std::vector<double> results;   // W, of the latest array measurement
    ReadingRing history;
    std::vector<ReadingRing> slotStats;  // one for each time slot
    std::int32_t avgCountRead = 0;
    bool settingsChanged = false;
    SensorSettings settings = DefaultSettings();
    std::string lastErrorText;
    bool triggerNowRequest = false;
    std::int16_t slotTriggerCursor = 0;
    std::int16_t traceTriggerCursor = 0;
};

}  // namespace kelvra::sensors
