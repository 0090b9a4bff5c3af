// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/cycle.h"

namespace kelvra::measure {

Cycle::Cycle(const CycleParts& parts)
    : p_(parts), pacing_(parts.state, parts.host, parts.news), rounds_(parts.host) {}

void Cycle::Start() {
    const CommandGuard guard(p_.state);
    if (!guard) return;
    Begin();
    p_.host.events.DoEvents();
    switch (p_.state.Ending() ? Opened::Ended : OpenSensors()) {
        case Opened::All:
            p_.news.measurement.Tell(&MeasurementListener::Prepared);
            while (!p_.state.Ending()) Pass();
            break;
        case Opened::Ended:
            break;
        case Opened::Failed:
            FailStart(p_.session.state.reconnectPrompt ? StartFailure::OpeningReconnect
                                                       : StartFailure::Opening);
            break;
        case Opened::None:
            FailStart(StartFailure::NoSensor);
            return;
    }
    Close();
}

// A Stop that is pressed from here on counts: nothing below takes it back.
void Cycle::Begin() {
    p_.state.measuring = true;
    p_.state.stopRequested = false;
    ++p_.state.starts;
    run_ = {};
    pacing_.Reset();
    for (sensors::SensorEntry& entry : p_.table.entries) {
        entry.initiateError.clear();
        entry.fetchError.clear();
    }
    BringEnabledToFront();
    p_.news.measurement.Tell(&MeasurementListener::Started);
    p_.modes.Find();
}

void Cycle::Stop() {
    p_.state.measuring = false;
    p_.state.stopRequested = true;
    p_.state.recordInterval = 0;
    p_.news.measurement.Tell(&MeasurementListener::Stopped);
}

// Fixes the channel numbers: slot 0, which opens the session, must hold an enabled sensor.
void Cycle::BringEnabledToFront() {
    sensors::SensorTable& table = p_.table;
    for (int slot = 0; slot < table.Slots(); ++slot) {
        if (!table[slot].present || table[slot].enabled) continue;
        for (int other = slot + 1; other < table.Slots(); ++other) {
            if (!table[other].present || !table[other].enabled) continue;
            table.SwapSlots(slot, other);
            break;
        }
    }
    for (int slot = 0; slot < table.Slots(); ++slot)
        run_.measured.push_back(table[slot].present && table[slot].enabled);
}

Cycle::Opened Cycle::OpenSensors() {
    bool operational = false;
    rounds_.Restart(p_.host.clock.Monotonic());
    for (int slot = 0; slot < p_.table.Slots(); ++slot) {
        if (!Takes(slot)) {
            p_.table[slot].sessionOpen = false;
            continue;
        }
        const bool opened = OpenAndConfigure(slot);
        if (p_.state.Ending()) return Opened::Ended;
        if (!opened) return Opened::Failed;
        operational = true;
        rounds_.AfterCall(CallKind::Setting);
        if (p_.state.Ending()) return Opened::Ended;
    }
    return operational ? Opened::All : Opened::None;
}

bool Cycle::OpenAndConfigure(int slot) {
    if (!p_.table[slot].sessionOpen) {
        p_.session.OpenSensor(slot);
        if (!p_.table[slot].sessionOpen) {
            TellSwitchedOff(slot);
            return false;
        }
        sensors::PrepareWorkArrays(p_.table, slot);
    }
    Configure(slot);
    return true;
}

// Reports a sensor that was switched off because it could not be added to the session.
void Cycle::TellSwitchedOff(int slot) {
    if (!p_.state.exiting && !p_.table[slot].enabled)
        p_.news.measurement.Tell(&MeasurementListener::SwitchedOff, slot);
}

void Cycle::FailStart(StartFailure why) {
    p_.news.measurement.Tell(&MeasurementListener::StartFailed, why);
}

}  // namespace kelvra::measure
