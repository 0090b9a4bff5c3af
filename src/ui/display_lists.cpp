// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/display_lists.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace kelvra::ui {

DisplayLists::DisplayLists(forms::Forms& forms, const sensors::SensorTable& table,
                           SensorSelection& selection)
    : forms_(forms), table_(table) {
    selection.listeners.Add(*this);
}

// Start selects the first of each list.
void DisplayLists::Started() {
    forms_.timeSlotDisp.Timeslot_Sensorselect.Clear();
    forms_.scopeDisp.Scope_Sensorselect.Clear();
}

void DisplayLists::ModesChanged() {
    controls::List& slots = forms_.timeSlotDisp.Timeslot_Sensorselect;
    controls::List& traces = forms_.scopeDisp.Scope_Sensorselect;
    Fill(slots, sensors::TimeSlot, slots.Data());
    Fill(traces, sensors::Trace, traces.Data());
}

void DisplayLists::Fill(controls::List& list, sensors::Mode mode, int selected) {
    std::vector<controls::List::Item> items;
    for (int slot = 0; slot < table_.Slots(); ++slot)
        if (sensors::MeasuresIn(table_[slot], mode))
            items.push_back({table_[slot].logicalName, slot});
    list.Fill(std::move(items));
    list.Preselect(std::max(list.IndexOfData(selected), 0));
}

}  // namespace kelvra::ui
