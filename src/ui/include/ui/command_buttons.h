// SPDX-License-Identifier: GPL-3.0-or-later
// The sensor commands of the setup dialog (zero, self test, information): offered or not, with the
// pictures that show it.
#pragma once

#include "forms/setup_form.h"

namespace kelvra::ui {

void OfferSensorCommands(forms::SetupForm& dialog, bool offered);

}  // namespace kelvra::ui
