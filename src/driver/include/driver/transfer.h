// SPDX-License-Identifier: GPL-3.0-or-later
// The transfer of one sensor's settings to the driver: reset, averaging, corrections, range,
// trigger, mode, in a fixed order. A failing call is reported and the transfer goes on.
#pragma once

#include "driver/session.h"

namespace kelvra::driver {

class ConfigurationTransfer {
public:
    ConfigurationTransfer(Session& session, sensors::SensorTable& table, const SessionNews& news)
        : session_(session), table_(table), news_(news) {}

    // Sends the slot's settings and clears its SettingsChanged, whatever the driver said; at the
    // end the errors of the transfer are shown, or the error strip is cleared. Never in simulation
    // mode.
    void ConfigureSensor(int slot);

private:
    Session& session_;
    sensors::SensorTable& table_;
    const SessionNews& news_;
};

}  // namespace kelvra::driver
