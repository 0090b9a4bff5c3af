// SPDX-License-Identifier: GPL-3.0-or-later
// Shows the errors of sensors in the setup dialog's strip and in the main window's notice. An error
// belongs to its sensor; the error of the lowest slot that has one is shown. Openings that fail end
// the start, and are shown in a message box.
#pragma once

#include <string>

#include "driver/notices.h"
#include "forms/setup_form.h"
#include "measure/listener.h"
#include "platform/dialogs.h"
#include "sensors/sensor_table.h"
#include "ui/notice.h"

namespace kelvra::ui {

class ErrorStrip final : public driver::SensorNotices, public measure::MeasurementListener {
public:
    ErrorStrip(forms::SetupForm& dialog, Notice& notice, const sensors::SensorTable& table,
               platform::Dialogs& dialogs)
        : dialog_(dialog), notice_(notice), table_(table), dialogs_(dialogs) {}

    void SensorFailed(int /*slot*/, const std::string& /*text*/) override { Refresh(); }
    void SensorIsWell(int /*slot*/) override { Refresh(); }
    void OpeningFailed(int slot, const std::string& text) override;

    void Started() override { Refresh(); }  // sensors have changed places

    // Call after sensors have come or gone.
    void Refresh();

    bool ErrorShown() const { return errorShown_; }

private:
    void Open(const std::string& text);
    void Close();

    forms::SetupForm& dialog_;
    Notice& notice_;
    const sensors::SensorTable& table_;
    platform::Dialogs& dialogs_;
    bool errorShown_ = false;
};

}  // namespace kelvra::ui
