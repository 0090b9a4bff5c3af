// SPDX-License-Identifier: GPL-3.0-or-later
// A control as the text that the user would read in it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"

namespace kelvra::console {

// Grids as rows of cells separated by TABs, lists with one entry per line, other controls as their
// text or caption.
std::vector<std::string> PrintLines(const controls::Control& control);

// The lines of a text, however they end.
std::vector<std::string> TextLines(std::string_view text);

}  // namespace kelvra::console
