// SPDX-License-Identifier: GPL-3.0-or-later
// The console front end: the whole program, driven by a script.
#pragma once

#include "console/options.h"

namespace kelvra::console {

// 0: the script ran to its end; 1: a command failed; 2: the script can't be read.
int RunConsole(const Options& options);

}  // namespace kelvra::console
