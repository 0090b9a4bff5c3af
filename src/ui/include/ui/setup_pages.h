// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of the setup dialog and the frames of the modes: which are visible, and where.
#pragma once

#include <cstdint>

#include "forms/setup_form.h"

namespace kelvra::ui {

// 0: general settings, then mode, trigger, correction, advanced. The page is below the header.
void SelectPage(forms::SetupForm& form, int page);

// Call after the header's height has changed.
void PlaceVisiblePage(forms::SetupForm& form);

// The mode's frame, the averaging frame (not in trace mode), and the scales of the mode's display.
void ShowModeFrames(forms::SetupForm& form, std::int32_t mode);

// The dialog does not grow beyond its pages.
void LimitSize(forms::SetupForm& form);

}  // namespace kelvra::ui
