// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's notice: one line in a frame that is visible while there is something to say.
#pragma once

#include <string>

#include "forms/main_window.h"

namespace kelvra::measure {

void ShowNotice(forms::MDIMain& window, std::string text);
void HideNotice(forms::MDIMain& window);

}  // namespace kelvra::measure
