// SPDX-License-Identifier: GPL-3.0-or-later
// The modes that the setup dialog offers for a sensor's model. What they enable is in
// enable_states.h.
#pragma once

#include "forms/setup_form.h"
#include "sensors/sensor_table.h"

namespace kelvra::ui {

// Fills the mode list for the model and selects the sensor's mode; if the list doesn't have it, the
// selection stays. An unknown model leaves the list as it is.
void ApplySensorCapabilities(forms::SetupForm& dialog, const sensors::SensorEntry& entry);

}  // namespace kelvra::ui
