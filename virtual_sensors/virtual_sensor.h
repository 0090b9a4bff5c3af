// SPDX-License-Identifier: GPL-3.0-or-later
// One sensor of the bench: whether it is plugged in, what it sees, and its noise. Averaging,
// corrections and trigger belong to the channel.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

#include "models.h"
#include "scenario.h"
#include "seen_signal.h"

namespace kelvra::virtual_sensors {

class VirtualSensor {
public:
    VirtualSensor(const Scenario& scenario, std::size_t number);

    const SensorPlan& Plan() const { return plan_; }
    const Model& Kind() const { return model_; }

    bool Plugged() const { return plugged_; }
    // How often the sensor has been plugged in; a channel opened before the last time is dead.
    int64_t Plugging() const { return plugging_; }
    void Plug(bool plugged);

    // The sum of the sources it sees, without noise.
    const Signal& Sees() const { return sees_; }

    // Standard deviation of a single measurement in dB, at the signal's mean power; infinite if
    // there is only noise.
    double NoiseDb() const;

    // One measurement of this power in W, averaged `count` times. May be negative where noise
    // dominates.
    double Measure(double powerW, double count);

    // Item `index` as "name:value"; index must be below InfoCount.
    std::string Info(std::size_t index) const;
    static const std::size_t InfoCount;

    std::string SelfTest() const;

private:
    double Normal();

    SensorPlan plan_;
    const Model& model_;
    bool plugged_;
    int64_t plugging_ = 1;
    Signal sees_;
    std::mt19937_64 random_;
};

}  // namespace kelvra::virtual_sensors
