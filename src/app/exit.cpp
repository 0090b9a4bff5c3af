// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/kelvra.h"

namespace kelvra::app {

void Kelvra::SaveSettings() {
    const sensors::TableLock lock(table);
    store.Save(table.Present());
    windows.limits.SaveUnsaved();
}

void Kelvra::Exit() {
    if (!state.exiting) EndEverything();
    host.events.Quit();
}

void Kelvra::ExitAsAsked() {
    if (state.exiting) return;
    EndEverything();
    if (!store.SaveFailure().empty()) host.dialogs.LastMessage(store.SaveFailure());
    host.events.Quit();
}

void Kelvra::EndEverything() {
    if (state.measuring) cycle.Stop();
    state.exiting = true;
    driverSession.Close();
    SaveSettings();
    const sensors::TableLock lock(table);
    for (sensors::SensorEntry* entry : table.Present()) sensors::ReleaseSlot(*entry);
    catalogue.Close();
}

}  // namespace kelvra::app
