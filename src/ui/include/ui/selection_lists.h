// SPDX-License-Identifier: GPL-3.0-or-later
// The two lists that choose the current sensor: the setup dialog's and the main window's. They list
// the sensors that are switched on, in slot order, each with its slot as item data.
#pragma once

#include "forms/forms.h"
#include "measure/listener.h"
#include "ui/sensor_selection.h"

namespace kelvra::ui {

class SelectionLists final : public measure::MeasurementListener, public CurrentSensorListener {
public:
    SelectionLists(forms::Forms& forms, sensors::SensorTable& table, SensorSelection& selection);

    // Call after the table has changed. Raises no event of the lists. If the current sensor is not
    // listed, no entry is selected.
    void Refresh();

    void Started() override { Refresh(); }
    void SwitchedOff(int /*slot*/) override { Refresh(); }
    void CurrentSensorChanged() override;
    void ListedChanged() override { Refresh(); }

private:
    sensors::SensorTable& table_;
    SensorSelection& selection_;
    controls::List& dialogList_;
    controls::List& mainList_;
};

}  // namespace kelvra::ui
