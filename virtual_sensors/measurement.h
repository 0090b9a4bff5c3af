// SPDX-License-Identifier: GPL-3.0-or-later
// One channel's measurement: how its settings determine duration, averaging and result, and its
// course from the start through the trigger to the result. Sessions start it, callers poll it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "scenario.h"
#include "status.h"
#include "virtual_sensor.h"

namespace kelvra::virtual_sensors {

// The settings of a channel.
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

enum class TriggerSource : uint8_t { Single, External, Hold, Immediate, Internal };
TriggerSource SourceOf(const SettingValues& settings);

// How often each value is averaged, 1 to 65536: the set number, or as often as the wanted noise
// needs and the settling-time limit allows.
int32_t AverageCount(const SettingValues& settings, const VirtualSensor& sensor);

// Duration in s of one measurement averaged `count` times, from its trigger on.
double Duration(const SettingValues& settings, int32_t count);

// The factor by which the corrections multiply a power.
double CorrectionFactor(const SettingValues& settings);

class Measurement {
public:
    // Starts over and drops the former result. Times are the bench's, in s.
    void Start(const SettingValues& settings, const VirtualSensor& sensor, const Scenario& scenario,
               double now);

    // A software trigger; ignored by a measurement that does not wait for one.
    void Trigger(double now);

    // Whether the measurement has ended. The first call that finds it ended draws the result.
    bool Complete(VirtualSensor& sensor, double now);

    // Why the settings give no result: they exclude each other. Such a measurement ends soon after
    // its start, without a trigger.
    Status Conflict() const { return conflict_; }

    // Empty until Complete has returned true.
    const std::vector<double>& ResultW() const { return resultW_; }
    Mode ResultMode() const { return mode_; }

private:
    Status conflict_ = Status::Ok;
    bool awaitsSoftware_ = false;
    std::optional<double> readyAt_;  // nothing: not started, or not yet triggered
    double afterTrigger_ = 0;        // s from the trigger to the result
    int32_t count_ = 1;
    int32_t points_ = 1;
    double factor_ = 1;
    Mode mode_ = Mode::Average;
    std::vector<double> resultW_;
};

}  // namespace kelvra::virtual_sensors
