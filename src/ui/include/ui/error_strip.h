// SPDX-License-Identifier: GPL-3.0-or-later
// The error strip of the setup dialog and the notice of the main window: where the errors of
// sensors are shown. And the recovery from an invalid session handle, which such an error asks for.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "driver/session.h"
#include "driver/transfer.h"
#include "forms/forms.h"
#include "measure/cycle.h"
#include "measure/state.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"

namespace kelvra::ui {

class ErrorStrip final : public driver::SensorNotices {
public:
    ErrorStrip(forms::Forms& forms, sensors::SensorTable& table, driver::SessionState& session,
               platform::Dialogs& dialogs)
        : forms_(forms), table_(table), session_(session), dialogs_(dialogs) {}

    // What the recovery works with; these need the strip themselves, so they come later.
    struct Recovery {
        driver::Session& session;
        driver::ConfigurationTransfer& transfer;
        measure::Cycle& cycle;
        measure::MeasureState& state;
        platform::Host& host;
    };
    void Connect(const Recovery& recovery) { recovery_.emplace(recovery); }

    // Strip and notice; neither changes in simulation mode.
    void SensorFailed(int slot, const std::string& text) override;
    void SensorIsWell(int slot) override;
    // In a message box.
    void OpeningFailed(int slot, const std::string& text) override;

    // Complaints from here on are this transfer's.
    void TransferBegins() { handleRefused_ = false; }
    // If the driver has complained of the session handle in this transfer: opens the slot again,
    // sends its settings again, ends the measurement, and says so. Once in a measurement.
    void RecoverAfterTransfer(int slot);

private:
    bool Reopen(int slot);
    void Clear();

    forms::Forms& forms_;
    sensors::SensorTable& table_;
    driver::SessionState& session_;
    platform::Dialogs& dialogs_;
    std::optional<Recovery> recovery_;
    bool handleRefused_ = false;  // in the transfer that runs, or ran last
    std::int64_t recoveredInStart_ = 0;
};

}  // namespace kelvra::ui
