// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the fields of the setup dialog back into a sensor's settings.
#pragma once

#include "forms/setup_form.h"
#include "sensors/sensor_settings.h"
#include "util/number_text.h"

namespace kelvra::ui {

// A field that shows what its setting would show leaves the setting alone, so that an edit of one
// field neither rounds nor resets another. A list without a selection leaves it alone, too, and so
// does a number out of the setting's range. Text boxes say what is wrong with their text
// (TextBox::fault). The frequency correction is always on. A time slot count is at least 1.
void StoreSettings(forms::SetupForm& form, sensors::SensorSettings& settings,
                   const util::NumberForm& locale);

}  // namespace kelvra::ui
