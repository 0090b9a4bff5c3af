// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/enabling.h"

#include "driver/catalogue.h"

namespace kelvra::ui {

Enabling::Enabling(forms::Forms& forms, const sensors::SensorTable& table,
                   SensorSelection& selection)
    : forms_(forms), table_(table) {
    selection.listeners.Add(*this);
}

void Enabling::Refresh() {
    const sensors::SensorEntry& current = table_[table_.currentSensor];
    ApplyEnableStates(forms_, FindEnableStates({activity_, table_.simulationMode,
                                                driver::CapabilitiesOf(sensors::TypeOf(current)),
                                                current.settings}));
}

void Enabling::Enter(Activity activity) {
    activity_ = activity;
    Refresh();
}

}  // namespace kelvra::ui
