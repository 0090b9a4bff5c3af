// SPDX-License-Identifier: GPL-3.0-or-later
// One sensor position, connected, simulated or free: who the sensor is, its settings, and the
// working state of the measurement.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "sensors/reading_ring.h"
#include "sensors/sensor_settings.h"
#include "sensors/settings_fields.h"

namespace kelvra::sensors {

// Statistics of one time slot.
struct TimeSlotStat {
    std::int16_t restart = -1;  // -1: set up at the next reading, else the next place in Values
    std::vector<double> values = std::vector<double>(ReadingRing::Length);  // W
    double power = 0;                                                       // this and below: dBm
    double max = 0;
    double min = 0;
    double mean = 0;
    double sigma = 0;  // dB
};

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
    std::vector<TimeSlotStat> slotStats;
    bool slotStatsFull = false;
    std::int32_t avgCountRead = 0;
    bool settingsChanged = false;
    SensorSettings settings = DefaultSettings();
    std::string lastErrorText;
    bool triggerNowRequest = false;
    std::int16_t slotTriggerCursor = 0;
    std::int16_t traceTriggerCursor = 0;
};

}  // namespace kelvra::sensors
