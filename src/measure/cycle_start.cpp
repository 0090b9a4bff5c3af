// SPDX-License-Identifier: GPL-3.0-or-later
#include <chrono>

#include "measure/command_buttons.h"
#include "measure/cycle.h"
#include "measure/notice.h"

namespace kelvra::measure {

namespace {

// Opening many sensors takes long; Stop must get through meanwhile.
constexpr auto LongestWithoutEvents = std::chrono::milliseconds(400);

// The list of a display gets a sensor; the first one is selected.
void AddToDisplay(controls::List& list, const std::string& name, int slot) {
    list.Add(name, slot);
    list.SetIndex(0);
}

}  // namespace

Cycle::Cycle(const CycleParts& parts)
    : p_(parts),
      speed_(parts.forms.mdiMain, parts.host),
      pacing_(parts.state, parts.host, parts.showDelay) {
    p_.forms.mdiMain.StartIt.click.Connect([this] { Start(); });
    p_.forms.mdiMain.StopIt.click.Connect([this] { Stop(); });
}

void Cycle::Start() {
    if (p_.state.commandRuns || p_.state.exiting) return;
    const CommandGuard guard(p_.state);
    BeginMeasuring();
    BringEnabledToFront();
    p_.selection.UpdateSensSelect();
    for (int slot = 0; slot < p_.table.Slots(); ++slot) {
        p_.results.PaintName(slot);
        p_.results.ClearValues(slot);
    }
    FindModes();
    p_.view.ModesChanged();
    speed_.Reset();
    pacing_.Reset();
    p_.host.events.DoEvents();
    switch (p_.state.Ending() ? Prepared::Ended : OpenSensors()) {
        case Prepared::Ready:
            OfferSensorCommands(p_.forms.setupForm, false);
            while (!p_.state.Ending()) Pass();
            ShowIdle();
            break;
        case Prepared::Ended:
            ShowIdle();
            break;
        case Prepared::Failed:
            ShowStartFailure();
            break;
        case Prepared::Nothing:
            p_.host.dialogs.Message({}, "No operational sensor selected",
                                    platform::MessageIcon::Exclamation);
            return;
    }
    Close();
}

void Cycle::Stop() {
    p_.state.measuring = false;
    p_.state.stopRequested = true;
    p_.state.recordInterval = 0;
    p_.forms.mdiMain.FileSaveData.caption = "Record Data...";
    if (!p_.session.state.errorShown) HideNotice(p_.forms.mdiMain);
    ShowIdle();
}

// A Stop that is pressed from here on counts, however early: nothing below takes it back.
void Cycle::BeginMeasuring() {
    p_.state.measuring = true;
    p_.state.stopRequested = false;
    ++p_.state.starts;
    // In this order: the focus goes from the one to the other.
    p_.forms.mdiMain.StopIt.enabled = true;
    p_.forms.mdiMain.StartIt.enabled = false;
}

// Also at the end of a measurement: Stop may have been pressed by someone, or by a recovery.
void Cycle::ShowIdle() {
    p_.forms.mdiMain.StartIt.enabled = true;
    p_.forms.mdiMain.StopIt.enabled = false;
    OfferSensorCommands(p_.forms.setupForm, true);
}

// Fixes the channel numbers: an enabled sensor must be in slot 0, which opens the session.
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
    measured_.assign(static_cast<std::size_t>(table.Slots()), false);
    for (int slot = 0; slot < table.Slots(); ++slot)
        measured_[static_cast<std::size_t>(slot)] = table[slot].present && table[slot].enabled;
}

void Cycle::FindModes() {
    p_.state.timeSlotModeActive = false;
    p_.state.traceModeActive = false;
    controls::List& slotList = p_.forms.timeSlotDisp.Timeslot_Sensorselect;
    controls::List& traceList = p_.forms.scopeDisp.Scope_Sensorselect;
    slotList.Clear();
    traceList.Clear();
    for (int slot = 0; slot < p_.table.Slots(); ++slot) {
        if (!Takes(slot)) continue;
        const sensors::SensorEntry& entry = p_.table[slot];
        if (entry.settings.Mode == sensors::TimeSlot) {
            p_.state.timeSlotModeActive = true;
            AddToDisplay(slotList, entry.logicalName, slot);
        } else if (entry.settings.Mode == sensors::Trace) {
            p_.state.traceModeActive = true;
            AddToDisplay(traceList, entry.logicalName, slot);
        }
    }
}

Cycle::Prepared Cycle::OpenSensors() {
    bool operational = false;
    platform::Duration lastRound = p_.host.clock.Monotonic();
    for (int slot = 0; slot < p_.table.Slots(); ++slot) {
        if (!Takes(slot)) {
            p_.table[slot].sessionOpen = false;
            continue;
        }
        const bool opened = OpenAndConfigure(slot);
        if (p_.state.Ending()) return Prepared::Ended;
        if (!opened) return Prepared::Failed;
        operational = true;
        LetEventsRunIfLate(lastRound);
        if (p_.state.Ending()) return Prepared::Ended;
    }
    return operational ? Prepared::Ready : Prepared::Nothing;
}

bool Cycle::OpenAndConfigure(int slot) {
    if (!p_.table[slot].sessionOpen) {
        p_.session.OpenSensor(slot);
        if (!p_.table[slot].sessionOpen) {
            ShowSwitch(slot);
            return false;
        }
        sensors::PrepareWorkArrays(p_.table, slot);
    }
    Configure(slot);
    return true;
}

// A sensor that can't be added to the session has been switched off.
void Cycle::ShowSwitch(int slot) {
    if (p_.state.exiting || p_.table[slot].enabled) return;
    p_.results.PaintName(slot);
    p_.selection.UpdateSensSelect();
}

void Cycle::LetEventsRunIfLate(platform::Duration& lastRound) {
    if (p_.host.clock.Monotonic() - lastRound <= LongestWithoutEvents) return;
    p_.host.events.DoEvents();
    lastRound = p_.host.clock.Monotonic();
}

void Cycle::ShowStartFailure() {
    if (!p_.session.state.reconnectPrompt) return;
    p_.host.dialogs.Message("Initialization Error",
                            "There was an error while initializing the sensors.\r\n"
                            "Please reconnect the sensors and press ok.",
                            platform::MessageIcon::Exclamation);
}

}  // namespace kelvra::measure
