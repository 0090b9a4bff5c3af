// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/sensor_selection.h"

#include <cstdint>
#include <vector>

namespace kelvra::measure {

SensorSelection::SensorSelection(forms::Forms& forms, sensors::SensorTable& table)
    : forms_(forms), table_(table) {
    forms_.mdiMain.TimeSensor_select_new.Click.Connect([this] { ChooseInMainWindow(); });
}

void SensorSelection::UpdateSensSelect() {
    std::vector<controls::List::Item> items;
    for (int slot = 0; slot < table_.Slots(); ++slot)
        if (table_[slot].Present && table_[slot].Enabled)
            items.push_back({table_[slot].LogicalName, slot});

    controls::List& dialogList = forms_.setupForm.SensSelect;
    controls::List& mainList = forms_.mdiMain.TimeSensor_select_new;
    mainList.Fill(items);
    dialogList.Fill(items);
    const bool listed = dialogList.IndexOfData(table_.CurrentSensor) >= 0;
    if (listed || items.empty())
        Select(table_.CurrentSensor);
    else
        Select(items.front().data);
}

void SensorSelection::Select(int slot) {
    if (slot < 0 || slot >= table_.Slots() || !table_[slot].Present) return;
    table_.CurrentSensor = static_cast<std::int16_t>(slot);
    controls::List& mainList = forms_.mdiMain.TimeSensor_select_new;
    mainList.Preselect(mainList.IndexOfData(slot));
    controls::List& dialogList = forms_.setupForm.SensSelect;
    dialogList.SetIndex(dialogList.IndexOfData(slot));
    forms_.setupForm.SensLogicalName.SetText(table_[slot].LogicalName);
}

void SensorSelection::ChooseInMainWindow() {
    Select(forms_.mdiMain.TimeSensor_select_new.Data());
}

}  // namespace kelvra::measure
