// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/selection_lists.h"

#include <vector>

namespace kelvra::ui {

SelectionLists::SelectionLists(forms::Forms& forms, sensors::SensorTable& table,
                               SensorSelection& selection)
    : table_(table),
      selection_(selection),
      dialogList_(forms.setupForm.SensSelect),
      mainList_(forms.mdiMain.TimeSensor_select_new) {
    selection_.listeners.Add(*this);
    for (controls::List* list : {&dialogList_, &mainList_})
        list->click.Connect([this, list] { selection_.Select(list->Data()); });
}

void SelectionLists::Refresh() {
    std::vector<controls::List::Item> items;
    for (int slot = 0; slot < table_.Slots(); ++slot)
        if (table_[slot].present && table_[slot].enabled)
            items.push_back({table_[slot].logicalName, slot});
    for (controls::List* list : {&dialogList_, &mainList_})
        if (list->Items() != items) list->Fill(items);
    selection_.Refresh();
    CurrentSensorChanged();
}

void SelectionLists::CurrentSensorChanged() {
    for (controls::List* list : {&dialogList_, &mainList_})
        list->Preselect(list->IndexOfData(table_.currentSensor));
}

}  // namespace kelvra::ui
