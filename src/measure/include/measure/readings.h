// SPDX-License-Identifier: GPL-3.0-or-later
// Fetches results from the driver, or from the simulation, stores them in the sensor's entry and
// shows scalar ones in the result table. Statuses are not looked at: what the driver leaves in the
// output is the reading, whatever it is.
#pragma once

#include "driver/session.h"
#include "measure/result_table.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"

namespace kelvra::measure {

class Readings {
public:
    // Most values of an array result.
    static constexpr int ArraySize = 1024;

    Readings(driver::Session& session, sensors::SensorTable& table, ResultTable& results,
             platform::Host& host)
        : session_(session), table_(table), results_(results), host_(host) {}

    // One scalar reading: LastReading (W), averaging count, history and sigma, SlotReadings (not in
    // simulation mode), and the row of the result table.
    void GetSingleReading(int slot);

    // One array result into Results (W): as many values as came, or ArraySize zeros when none did.
    void GetMultiReading(int slot);

private:
    void FetchScalar(int slot);
    int FetchArray(int slot);

    driver::Session& session_;
    sensors::SensorTable& table_;
    ResultTable& results_;
    platform::Host& host_;
};

}  // namespace kelvra::measure
