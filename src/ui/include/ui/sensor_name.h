// SPDX-License-Identifier: GPL-3.0-or-later
// The user's own name for a sensor: typed in the setup dialog, kept where the device-list library
// finds it again.
#pragma once

#include "forms/forms.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/notice.h"
#include "ui/result_table.h"
#include "ui/selection_lists.h"

namespace kelvra::ui {

class SensorName final : public CurrentSensorListener {
public:
    // Connects to the commit of the dialog's name box.
    SensorName(forms::Forms& forms, sensors::SensorTable& table, platform::Host& host,
               ResultTable& results, SensorSelection& selection, SelectionLists& lists,
               Notice& notice);

    void CurrentSensorChanged() override;

    // Takes the name box's text for the slot; an empty one becomes the channel number. A slot
    // without a sensor has no name; a simulated sensor's is not stored. A name that can't be stored
    // is the sensor's name until discovery reads the old one again; the notice says why.
    void StoreLogicalName(int slot);

private:
    void Keep(const sensors::SensorEntry& entry);

    forms::Forms& forms_;
    sensors::SensorTable& table_;
    platform::Host& host_;
    ResultTable& results_;
    SelectionLists& lists_;
    Notice& notice_;
};

}  // namespace kelvra::ui
