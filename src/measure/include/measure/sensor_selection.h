// SPDX-License-Identifier: GPL-3.0-or-later
// Which sensor is the current one: the lists that choose it, in the setup dialog and in the main
// window, and how the rest of the program selects one. What the dialog then shows is its own rule.
#pragma once

#include "forms/forms.h"
#include "sensors/sensor_table.h"

namespace kelvra::measure {

class SensorSelection {
public:
    SensorSelection(forms::Forms& forms, sensors::SensorTable& table);

    // Lists the enabled sensors, in slot order, each with its slot as item data, and selects the
    // current one, or the first.
    void UpdateSensSelect();

    // Makes a present sensor the current one; one that is not listed leaves no entry selected.
    void Select(int slot);

private:
    void ChooseInMainWindow();

    forms::Forms& forms_;
    sensors::SensorTable& table_;
};

}  // namespace kelvra::measure
