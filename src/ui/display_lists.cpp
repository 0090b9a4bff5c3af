// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/display_lists.h"

#include <utility>
#include <vector>

namespace kelvra::ui {

void DisplayLists::ModesChanged() {
    Fill(forms_.timeSlotDisp.Timeslot_Sensorselect, sensors::TimeSlot);
    Fill(forms_.scopeDisp.Scope_Sensorselect, sensors::Trace);
}

void DisplayLists::Fill(controls::List& list, sensors::Mode mode) {
    std::vector<controls::List::Item> items;
    for (int slot = 0; slot < table_.Slots(); ++slot) {
        const sensors::SensorEntry& entry = table_[slot];
        if (entry.present && entry.enabled && entry.settings.Mode == mode)
            items.push_back({entry.logicalName, slot});
    }
    list.Fill(std::move(items));
    list.Preselect(0);
}

}  // namespace kelvra::ui
