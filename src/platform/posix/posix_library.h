// SPDX-License-Identifier: GPL-3.0-or-later
// Shared libraries of this family of systems. Where they are looked for is PosixComputer's
// business.
#pragma once

#include <memory>
#include <string>

#include "platform/computer.h"

namespace kelvra::platform {

// By absolute path, so that the system searches nowhere. Null, and the system's words in `why`,
// when it can't be loaded.
std::unique_ptr<Library> LoadLibrary(const std::string& path, std::string& why);

}  // namespace kelvra::platform
