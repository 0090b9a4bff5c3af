// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/kelvra.h"

namespace kelvra::app {

void Kelvra::SaveSettings() {
    const sensors::TableLock lock(table);
    store.Save(table.Present());
}

void Kelvra::Exit() {
    if (state.exiting) return;
    if (state.measuring) cycle.Stop();
    state.exiting = true;
    if (!table.simulationMode) driverSession.Close();
    SaveSettings();
    const sensors::TableLock lock(table);
    for (sensors::SensorEntry* entry : table.Present()) sensors::ReleaseSlot(*entry);
    catalogue.Close();
    host.events.Quit();
}

}  // namespace kelvra::app
