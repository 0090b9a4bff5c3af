// SPDX-License-Identifier: GPL-3.0-or-later
// The transfer of one sensor's settings to the driver: reset, averaging, corrections, range,
// trigger, mode, in this order. A failing call is reported and the transfer goes on.
#pragma once

#include "driver/session.h"

namespace kelvra::driver {

class ConfigurationTransfer {
public:
    ConfigurationTransfer(Session& session, sensors::SensorTable& table, const SessionNews& news)
        : session_(session), table_(table), news_(news) {}

    // Sets the pace, which is called after each call. Without one, transfers never end early.
    void SetPace(TransferPace& pace) { pace_ = &pace; }

    // Sends the slot's settings and clears its settingsChanged, even if calls fail. At the end it
    // reports the transfer's errors once more, or that the sensor is well. If the pace ends the
    // transfer, settingsChanged stays set. Not for simulation mode.
    void ConfigureSensor(int slot);

private:
    bool Send(int slot);
    void ReportOutcome(int slot);

    Session& session_;
    sensors::SensorTable& table_;
    const SessionNews& news_;
    TransferPace* pace_ = nullptr;
};

}  // namespace kelvra::driver
