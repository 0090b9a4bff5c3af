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
    for (const sensors::Mode mode : {sensors::TimeSlot, sensors::Trace}) ListOf(mode).Clear();
}

void DisplayLists::ModesChanged() {
    for (const sensors::Mode mode : {sensors::TimeSlot, sensors::Trace}) Fill(mode);
}

controls::List& DisplayLists::ListOf(sensors::Mode mode) const {
    return mode == sensors::TimeSlot ? forms_.timeSlotDisp.Timeslot_Sensorselect
                                     : forms_.scopeDisp.Scope_Sensorselect;
}

int DisplayLists::Slot(sensors::Mode mode) const {
    const int slot = ListOf(mode).Data();
    const bool measures =
        slot >= 0 && slot < table_.Slots() && sensors::MeasuresIn(table_[slot], mode);
    return measures ? slot : -1;
}

void DisplayLists::Select(sensors::Mode mode, int slot) {
    controls::List& list = ListOf(mode);
    if (const int index = list.IndexOfData(slot); index >= 0) list.SetIndex(index);
}

void DisplayLists::Fill(sensors::Mode mode) {
    controls::List& list = ListOf(mode);
    const int selected = list.Data();
    std::vector<controls::List::Item> items;
    for (int slot = 0; slot < table_.Slots(); ++slot)
        if (sensors::MeasuresIn(table_[slot], mode))
            items.push_back({table_[slot].logicalName, slot});
    list.Fill(std::move(items));
    list.Preselect(std::max(list.IndexOfData(selected), 0));
}

}  // namespace kelvra::ui
