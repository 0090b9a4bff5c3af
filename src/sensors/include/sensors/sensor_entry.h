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
    std::int16_t Restart = -1;  // -1: set up at the next reading, else the next place in Values
    std::vector<double> Values = std::vector<double>(ReadingRing::Length);  // W
    double Power = 0;                                                       // this and below: dBm
    double Max = 0;
    double Min = 0;
    double Mean = 0;
    double Sigma = 0;  // dB
};

struct SensorEntry {
    std::string ResourceName;  // driver resource descriptor; empty: the slot is free
    bool Present = false;
    bool SessionOpen = false;  // its channel is open in the driver session
    bool Enabled = false;      // takes part in measurements
    bool NewTSlotData = false;
    bool NewScopeData = false;
    bool TSlotStatsActive = false;
    std::string LogicalName;
    std::string SensorId;          // type, ";", serial number
    std::int32_t MeasPending = 0;  // 1: started and not yet complete
    std::int16_t WaitTicks = 0;    // length of the activity bar, 0 .. 8
    double LastReading = 0;        // W
    std::vector<double> Results;   // W, of the latest array measurement
    ReadingRing History;
    std::vector<TimeSlotStat> TSlotStats;
    bool TSlotStatsFull = false;
    std::int32_t AvgCountRead = 0;
    bool SettingsChanged = false;
    SensorSettings Settings = DefaultSettings();
    std::string LastErrorText;
    bool TriggerNowRequest = false;
    std::int16_t TSlotTriggerCursor = 0;
    std::int16_t ScopeTriggerCursor = 0;
};

}  // namespace kelvra::sensors
