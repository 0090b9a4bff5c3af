// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the enable states of the main window and the setup dialog: determines them again when
// something they depend on has changed.
#pragma once

#include <optional>

#include "forms/forms.h"
#include "measure/listener.h"
#include "sensors/sensor_table.h"
#include "ui/enable_states.h"
#include "ui/sensor_selection.h"

namespace kelvra::ui {

class Enabling final : public measure::MeasurementListener,
                       public measure::CommandListener,
                       public CurrentSensorListener {
public:
    Enabling(forms::Forms& forms, const sensors::SensorTable& table, SensorSelection& selection);

    // Call after the settings of the current sensor have changed, or the simulation has begun or
    // ended.
    void Refresh();

    void Started() override { Enter(Activity::Opening); }
    void Prepared() override { Enter(Activity::Measuring); }
    void StartFailed(measure::StartFailure /*why*/) override { Enter(Activity::Held); }
    void Stopped() override { Enter(Activity::Idle); }
    void CommandBegins(measure::SensorCommand command) override;
    void CommandEnded(const measure::CommandEnd& end) override;
    void CurrentSensorChanged() override { Refresh(); }

private:
    void Enter(Activity activity);

    forms::Forms& forms_;
    const sensors::SensorTable& table_;
    Activity activity_ = Activity::Idle;
    std::optional<Activity> command_;  // while a sensor command runs
};

}  // namespace kelvra::ui
