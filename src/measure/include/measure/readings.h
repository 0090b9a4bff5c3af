// SPDX-License-Identifier: GPL-3.0-or-later
// Fetches results from the driver, or from the simulation, and stores them in the sensor's entry.
// What the driver leaves in the output is the reading, as it is; a failing fetch is the sensor's
// error as well.
#pragma once

#include "driver/session.h"
#include "sensors/sensor_table.h"
#include "util/random.h"

namespace kelvra::measure {

class Readings {
public:
    // Most values of an array result.
    static constexpr int ArraySize = 1024;

    Readings(driver::Session& session, sensors::SensorTable& table, util::Random& random)
        : session_(session), table_(table), random_(random) {}

    // One scalar reading: its power (W), the averaging count, the history, and (not in simulation
    // mode) the slot's reading for a recording.
    void GetSingleReading(int slot);

    // One array result into Results (W): as many values as came, or ArraySize zeros when none did.
    void GetMultiReading(int slot);

private:
    void FetchScalar(int slot);
    int FetchArray(int slot);

    driver::Session& session_;
    sensors::SensorTable& table_;
    util::Random& random_;
};

}  // namespace kelvra::measure
