// SPDX-License-Identifier: GPL-3.0-or-later
// The sensor lists of the two displays: the sensors that measure in trace mode, and those in time
// slot mode. The first one becomes selected.
#pragma once

#include "forms/forms.h"
#include "measure/listener.h"
#include "sensors/sensor_table.h"
#include "ui/sensor_selection.h"

namespace kelvra::ui {

class DisplayLists final : public measure::MeasurementListener, public CurrentSensorListener {
public:
    DisplayLists(forms::Forms& forms, const sensors::SensorTable& table,
                 SensorSelection& selection);

    void Started() override;
    // A selected sensor that is still listed stays selected.
    void ModesChanged() override;
    void ListedChanged() override { ModesChanged(); }
    // The slot of the sensor that the mode's display shows; -1: none.
    int Slot(sensors::Mode mode) const;
    // Selects the slot in the list of that mode's display, if it is listed there.
    void Select(sensors::Mode mode, int slot);

private:
    controls::List& ListOf(sensors::Mode mode) const;
    void Fill(sensors::Mode mode);

    forms::Forms& forms_;
    const sensors::SensorTable& table_;
};

}  // namespace kelvra::ui
