// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/session_recovery.h"

#include <string_view>

namespace kelvra::measure {

namespace {

// The driver's complaint about its first parameter, the session handle.
constexpr std::string_view HandleComplaint = "arameter 1 out of";

}  // namespace

void SessionRecovery::SensorFailed(int slot, const std::string& /*text*/) {
    const std::string& ofTransfer = p_.table[slot].lastErrorText;
    if (ofTransfer.find(HandleComplaint) != std::string::npos) handleRefused_ = true;
}

void SessionRecovery::TransferEnds(int slot) {
    if (p_.state.exiting || !handleRefused_ || recoveredInStart_ == p_.state.starts) return;
    recoveredInStart_ = p_.state.starts;
    const bool recording = p_.state.recording;
    const bool answers = Reopen(slot);
    if (p_.state.exiting) return;
    p_.cycle.Stop();
    p_.news.measurement.Tell(&MeasurementListener::SessionLost,
                             LostSession{slot, answers, recording});
    p_.events.DoEvents();
}

// Opens slot 0 first, which opens the session; then the sensor whose transfer failed.
bool SessionRecovery::Reopen(int slot) {
    p_.table[slot].lastErrorText.clear();
    p_.notices.Tell(&driver::SensorNotices::SensorIsWell, slot);
    p_.session.Close();
    for (const int opened : {0, slot}) {
        if (p_.state.exiting || p_.table[opened].sessionOpen) continue;
        p_.session.OpenSensor(opened);
    }
    if (p_.state.exiting) return false;
    if (!p_.table[slot].sessionOpen) {
        if (!p_.table[slot].enabled)
            p_.news.measurement.Tell(&MeasurementListener::SwitchedOff, slot);
        return false;
    }
    p_.transfer.ConfigureSensor(slot);
    return p_.table[slot].sessionOpen && !handleRefused_;
}

}  // namespace kelvra::measure
