// SPDX-License-Identifier: GPL-3.0-or-later
// The sensor lists of the two displays: the sensors that measure in trace mode, and those in time
// slot mode. The first one becomes selected.
#pragma once

#include "forms/forms.h"
#include "measure/listener.h"
#include "sensors/sensor_table.h"

namespace kelvra::ui {

class DisplayLists final : public measure::MeasurementListener {
public:
    DisplayLists(forms::Forms& forms, const sensors::SensorTable& table)
        : forms_(forms), table_(table) {}

    void ModesChanged() override;

private:
    void Fill(controls::List& list, sensors::Mode mode);

    forms::Forms& forms_;
    const sensors::SensorTable& table_;
};

}  // namespace kelvra::ui
