// SPDX-License-Identifier: GPL-3.0-or-later
// How the program's version and date are written wherever it names itself.
#pragma once

#include <string>

#include "platform/computer.h"

namespace kelvra::ui {

// "1.0.22"; without the revision if that is 0.
std::string VersionText(const platform::ProgramVersion& version);

// Of the program file, month/day/year: "3/7/2005"; empty if there is none.
std::string ProgramDate(platform::Computer& computer);

}  // namespace kelvra::ui
