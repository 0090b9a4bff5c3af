// SPDX-License-Identifier: GPL-3.0-or-later
// What the program says about itself: name, version, addresses. From the build.
#pragma once

#include "platform/computer.h"

namespace kelvra::options {

platform::ProgramVersion Version();

}  // namespace kelvra::options
