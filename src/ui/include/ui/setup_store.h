// SPDX-License-Identifier: GPL-3.0-or-later
// Reads a field of the setup dialog back into a sensor's settings.
#pragma once

#include "forms/setup_form.h"
#include "sensors/sensor_settings.h"
#include "ui/setup_rows.h"
#include "util/number_text.h"

namespace kelvra::ui {

// Stores the row's field and no other, so that an edit neither rounds nor resets other settings. A
// text that says what is stored already, a list without a selection, and a number out of the
// setting's range leave the setting as it is. A text box says what is wrong with its text
// (TextBox::fault). The frequency correction is on after every store. A time slot count is at
// least 1.
void StoreField(forms::SetupForm& form, const SetupRow& row, sensors::SensorSettings& settings,
                const util::NumberForm& locale);

}  // namespace kelvra::ui
