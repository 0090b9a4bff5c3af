// SPDX-License-Identifier: GPL-3.0-or-later
// One channel's measurement: how its settings determine duration, averaging and result, and its
// course from the start through the trigger to the result. Sessions start it, callers poll it.
// measured_spans says what of the signal each value is the mean of.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include "level_search.h"
#include "measured_spans.h"
#include "scenario.h"
#include "setting_values.h"
#include "status.h"
#include "virtual_sensor.h"

namespace kelvra::virtual_sensors {

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
    void AwaitTrigger(const SettingValues& settings, const Signal& signal, const Scenario& scenario,
                      double now);
    void LookForTrigger(const Signal& signal, double now);

    Status conflict_ = Status::Ok;
    bool awaitsSoftware_ = false;
    std::optional<TriggerSearch> search_;  // while an internal trigger is awaited
    std::optional<double> triggerAt_;      // nothing: not started, or not yet triggered
    // When the last internal trigger came.
    double lastInternal_ = -std::numeric_limits<double>::infinity();
    double afterTrigger_ = 0;  // s from the trigger to the result
    int32_t count_ = 1;
    double factor_ = 1;
    Mode mode_ = Mode::Average;
    MeasuredSpans spans_;
    std::vector<double> resultW_;
};

}  // namespace kelvra::virtual_sensors
