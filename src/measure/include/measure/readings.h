// SPDX-License-Identifier: GPL-3.0-or-later
// Fetches results from the driver, or from the simulation, and stores them in the sensor's entry.
// The reading is what the driver leaves in the output, even if the fetch fails; the failure becomes
// the sensor's error.
#pragma once

#include "driver/session.h"
#include "sensors/sensor_table.h"
#include "util/random.h"

namespace kelvra::measure {

class Readings {
public:
    // The most values of an array result.
    static constexpr int ArraySize = 1024;

    Readings(driver::Session& session, sensors::SensorTable& table, util::Random& random)
        : session_(session), table_(table), random_(random) {}

    // Fetches a scalar reading: its power (W), the averaging count, the history, and (not in
    // simulation mode) the slot's reading for a recording.
    void GetSingleReading(int slot);

    // Fetches an array result into Results (W): the values received, or ArraySize zeros if there
    // were none.
    void GetMultiReading(int slot);

private:
    void FetchScalar(int slot);
    int FetchArray(int slot);

    driver::Session& session_;
    sensors::SensorTable& table_;
    util::Random& random_;
};

}  // namespace kelvra::measure
