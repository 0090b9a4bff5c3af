// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/error_strip.h"

#include <string_view>

#include "measure/notice.h"

namespace kelvra::ui {

namespace {

constexpr int OpenHeight = 2835;  // twips, of the dialog's header with the strip
constexpr int ClosedHeight = forms::SetupForm::HeaderHeight;

// The driver's complaint about its first parameter, the session handle.
constexpr std::string_view HandleComplaint = "arameter 1 out of";

void SetHeaderHeight(controls::Frame& header, int height) {
    controls::Geometry place = header.place;
    place.height = height;
    header.place = place;
}

}  // namespace

void ErrorStrip::SensorFailed(int slot, const std::string& text) {
    if (table_.simulationMode) return;
    const std::string named = table_[slot].logicalName + ": " + text;
    session_.errorShown = true;
    measure::ShowNotice(forms_.mdiMain, named);
    forms_.setupForm.lblInputError.caption = named;
    SetHeaderHeight(forms_.setupForm.Frame1, OpenHeight);
    if (text.find(HandleComplaint) != std::string::npos) handleRefused_ = true;
}

void ErrorStrip::SensorIsWell(int /*slot*/) {
    if (!table_.simulationMode) Clear();
}

void ErrorStrip::OpeningFailed(int /*slot*/, const std::string& text) {
    dialogs_.Message({}, text, platform::MessageIcon::Exclamation);
}

void ErrorStrip::Clear() {
    session_.errorShown = false;
    measure::HideNotice(forms_.mdiMain);
    forms_.setupForm.lblInputError.caption = "";
    SetHeaderHeight(forms_.setupForm.Frame1, ClosedHeight);
}

// The session first, which slot 0 opens; then the sensor that met the complaint.
bool ErrorStrip::Reopen(int slot) {
    recovery_->session.Close();
    for (const int opened : {0, slot}) {
        if (recovery_->state.exiting || table_[opened].sessionOpen) continue;
        recovery_->session.OpenSensor(opened);
    }
    if (recovery_->state.exiting || !table_[slot].sessionOpen) return false;
    recovery_->transfer.ConfigureSensor(slot);
    return true;
}

void ErrorStrip::RecoverAfterTransfer(int slot) {
    if (!handleRefused_ || !recovery_ || recoveredInStart_ == recovery_->state.starts) return;
    recoveredInStart_ = recovery_->state.starts;
    Clear();
    const bool reopened = Reopen(slot);
    if (recovery_->state.exiting) return;
    recovery_->cycle.Stop();
    measure::ShowNotice(forms_.mdiMain,
                        std::string("The driver session was lost and ") +
                            (reopened ? "has been opened again" : "could not be opened again") +
                            ". The measurement, and a recording, has ended.");
    recovery_->host.events.DoEvents();
}

}  // namespace kelvra::ui
