// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/error_strip.h"

#include <algorithm>
#include <string_view>

#include "measure/notice.h"
#include "util/text.h"

namespace kelvra::ui {

namespace {

constexpr int OpenHeight = 2835;  // twips, of the dialog's header with the strip
constexpr int ClosedHeight = forms::SetupForm::HeaderHeight;
constexpr std::size_t GeneralTail = 4;

// The driver's complaint about its first parameter, the session handle.
constexpr std::string_view HandleComplaint = "arameter 1 out of";

std::string ShownPart(const std::string& text, bool isGeneral) {
    if (isGeneral) return text.substr(0, text.size() - std::min(text.size(), GeneralTail));
    return std::string(util::TrimLineBreaks(text));
}

void SetHeaderHeight(controls::Frame& header, int height) {
    controls::Geometry place = header.Place;
    place.height = height;
    header.Place = place;
}

}  // namespace

void ErrorStrip::ShowSensorError(bool isError, int slot, const std::string& text, bool isGeneral) {
    if (table_.SimulationMode) return;
    if (isError)
        Show(slot, ShownPart(text, isGeneral), isGeneral);
    else
        Clear();
    if (text.find(HandleComplaint) != std::string::npos) handleRefused_ = true;
}

void ErrorStrip::Show(int slot, const std::string& text, bool isGeneral) {
    const std::string named = table_[slot].LogicalName + ": " + text;
    if (!isGeneral) session_.ErrorShown = true;
    measure::ShowNotice(forms_.mdiMain, isGeneral ? text : named);
    forms_.setupForm.lblInputError.Caption = named;
    SetHeaderHeight(forms_.setupForm.Frame1, OpenHeight);
}

void ErrorStrip::Clear() {
    session_.ErrorShown = false;
    measure::HideNotice(forms_.mdiMain);
    forms_.setupForm.lblInputError.Caption = "";
    SetHeaderHeight(forms_.setupForm.Frame1, ClosedHeight);
}

void ErrorStrip::RecoverAfterTransfer(int slot) {
    if (!handleRefused_ || !recovery_ || recoveredInStart_ == recovery_->state.starts) return;
    recoveredInStart_ = recovery_->state.starts;
    Clear();
    recovery_->session.OpenSensor(slot);
    if (!recovery_->state.exiting && table_[slot].SessionOpen)
        recovery_->transfer.ConfigureSensor(slot);
    if (recovery_->state.exiting) return;
    recovery_->cycle.StopIt_Click();
    measure::ShowNotice(forms_.mdiMain,
                        "The driver session was lost and has been opened again. The measurement, and a "
                        "recording, has ended.");
    recovery_->host.events.DoEvents();
}

}  // namespace kelvra::ui
