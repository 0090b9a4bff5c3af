// SPDX-License-Identifier: GPL-3.0-or-later
// Shows how many sensors are connected.
#pragma once

#include "forms/main_window.h"

namespace kelvra::ui {

// 0 means the simulation.
void ShowConnected(forms::MDIMain& window, int sensors);

}  // namespace kelvra::ui
