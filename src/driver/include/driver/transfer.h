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

    // Asked after each call; none of its own without one.
    void SetPace(TransferPace& pace) { pace_ = &pace; }

    // Sends the slot's settings and clears its settingsChanged, even if calls fail. At the end the
    // errors of the transfer are reported once more, or that the sensor is well. A transfer that
    // the pace has ended leaves the settings changed. Never in simulation mode.
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
