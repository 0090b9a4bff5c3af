// SPDX-License-Identifier: GPL-3.0-or-later
// The settings of a channel, and those of them that select the measurement mode and the trigger.
#pragma once

#include <array>
#include <cstdint>

#include "operations.h"

namespace kelvra::virtual_sensors {

class SettingValues {
public:
    SettingValues();  // as after a reset

    double operator[](Setting setting) const { return values_[static_cast<std::size_t>(setting)]; }
    bool IsOn(Setting setting) const { return (*this)[setting] != 0; }

    // False for a value outside its limits or that is not a number; then nothing changes.
    bool Set(Setting setting, double value);

private:
    std::array<double, SettingCount> values_{};
};

enum class Mode : uint8_t { Average, Buffered, Slots, Burst, Trace };
Mode ModeOf(const SettingValues& settings);
bool GivesArray(Mode mode);

// How many values a measurement gives.
int32_t PointCount(const SettingValues& settings);

enum class TriggerSource : uint8_t { Single, External, Hold, Immediate, Internal };
TriggerSource SourceOf(const SettingValues& settings);

}  // namespace kelvra::virtual_sensors
