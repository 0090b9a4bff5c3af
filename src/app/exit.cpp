// SPDX-License-Identifier: GPL-3.0-or-later
#include <vector>

#include "app/kelvra.h"

namespace kelvra::app {

void Kelvra::MFileExit_Click() {
    if (state.exiting) return;
    if (state.Measuring) cycle.StopIt_Click();
    state.exiting = true;
    if (!table.SimulationMode) driverSession.Close();

    const sensors::TableLock lock(table);
    std::vector<sensors::SensorEntry*> present;
    for (int slot = 0; slot < table.Slots(); ++slot)
        if (table[slot].Present) present.push_back(&table[slot]);
    store.Save(present);
    for (sensors::SensorEntry* entry : present) sensors::ReleaseSlot(*entry);
    catalogue.Close();
    host.events.Quit();
}

}  // namespace kelvra::app
