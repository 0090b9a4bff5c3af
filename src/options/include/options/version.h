// SPDX-License-Identifier: GPL-3.0-or-later
// The program's name and version, from the build.
#pragma once

#include "platform/computer.h"

namespace kelvra::options {

inline const platform::ProgramVersion Version = {"Kelvra", KELVRA_VERSION_MAJOR,
                                                 KELVRA_VERSION_MINOR, KELVRA_VERSION_REVISION};

}  // namespace kelvra::options
