// SPDX-License-Identifier: GPL-3.0-or-later
// What the setup dialog offers for a sensor's model.
#pragma once

#include "forms/setup_form.h"
#include "sensors/sensor_table.h"

namespace kelvra::ui {

// Fills the mode list for the model and selects the sensor's mode (or leaves the selection when the
// list doesn't have it); enables the trigger and advanced pages, or disables the averaging slot. An
// unknown model leaves list and controls as they are.
void ApplySensorCapabilities(forms::SetupForm& dialog, const sensors::SensorEntry& entry);

}  // namespace kelvra::ui
