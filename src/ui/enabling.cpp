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
    const std::string_view type = sensors::TypeOf(current);
    ApplyEnableStates(
        forms_, FindEnableStates({command_.value_or(activity_), table_.simulationMode,
                                  driver::CapabilitiesOf(type), driver::TakesTriggerAndMode(type),
                                  driver::TakesAdvanced(type), current.settings}));
}

void Enabling::CommandBegins(measure::SensorCommand command) {
    command_ = command == measure::SensorCommand::Zero ? Activity::Zeroing : Activity::Command;
    Refresh();
}

void Enabling::CommandEnded(const measure::CommandEnd& /*end*/) {
    command_.reset();
    Refresh();
}

void Enabling::Enter(Activity activity) {
    activity_ = activity;
    Refresh();
}

}  // namespace kelvra::ui
