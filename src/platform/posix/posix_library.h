// SPDX-License-Identifier: GPL-3.0-or-later
// Shared libraries of this family of systems. PosixComputer decides where to look for them.
#pragma once

#include <memory>
#include <string>

#include "platform/computer.h"

namespace kelvra::platform {

// Takes an absolute path, so that the system does not search. Null if it can't be loaded; `why`
// then has the system's message.
std::unique_ptr<Library> LoadLibrary(const std::string& path, std::string& why);

}  // namespace kelvra::platform
