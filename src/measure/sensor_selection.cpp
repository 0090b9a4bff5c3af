// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/sensor_selection.h"

#include <cstdint>
#include <vector>

namespace kelvra::measure {

SensorSelection::SensorSelection(forms::Forms& forms, sensors::SensorTable& table)
    : forms_(forms), table_(table) {
    forms_.mdiMain.TimeSensor_select_new.click.Connect([this] { ChooseInMainWindow(); });
}

void SensorSelection::UpdateSensSelect() {
    std::vector<controls::List::Item> items;
    for (int slot = 0; slot < table_.Slots(); ++slot)
        if (table_[slot].present && table_[slot].enabled)
            items.push_back({table_[slot].logicalName, slot});

    controls::List& dialogList = forms_.setupForm.SensSelect;
    controls::List& mainList = forms_.mdiMain.TimeSensor_select_new;
    mainList.Fill(items);
    dialogList.Fill(items);
    const bool listed = dialogList.IndexOfData(table_.currentSensor) >= 0;
    if (listed || items.empty())
        Select(table_.currentSensor);
    else
        Select(items.front().data);
}

void SensorSelection::Select(int slot) {
    if (slot < 0 || slot >= table_.Slots() || !table_[slot].present) return;
    table_.currentSensor = static_cast<std::int16_t>(slot);
    controls::List& mainList = forms_.mdiMain.TimeSensor_select_new;
    mainList.Preselect(mainList.IndexOfData(slot));
    controls::List& dialogList = forms_.setupForm.SensSelect;
    dialogList.SetIndex(dialogList.IndexOfData(slot));
    forms_.setupForm.SensLogicalName.SetText(table_[slot].logicalName);
}

void SensorSelection::ChooseInMainWindow() {
    Select(forms_.mdiMain.TimeSensor_select_new.Data());
}

}  // namespace kelvra::measure
