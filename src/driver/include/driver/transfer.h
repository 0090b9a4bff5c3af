// SPDX-License-Identifier: GPL-3.0-or-later
// The transfer of one sensor's settings to the driver: reset, averaging, corrections, range,
// trigger, mode, in a fixed order. A failing call is reported and the transfer goes on.
#pragma once

#include "driver/session.h"

namespace kelvra::driver {

class ConfigurationTransfer {
public:
    ConfigurationTransfer(Session& session, sensors::SensorTable& table, SensorNotices& notices,
                          TransferMarks& marks)
        : session_(session), table_(table), notices_(notices), marks_(marks) {}

    // Sends the slot's settings and clears its settingsChanged, even if calls fail. At the end the
    // errors of the transfer are reported once more, or that the sensor is well. Never in
    // simulation mode.
    void ConfigureSensor(int slot);

private:
    void ReportOutcome(int slot);

    Session& session_;
    sensors::SensorTable& table_;
    SensorNotices& notices_;
    TransferMarks& marks_;
};

}  // namespace kelvra::driver
