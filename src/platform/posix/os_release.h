// SPDX-License-Identifier: GPL-3.0-or-later
// The file in which a distribution names itself.
// Format: freedesktop.org, "os-release" (systemd's manual page os-release(5)).
#pragma once

#include <string>
#include <string_view>

namespace kelvra::platform {

// PRETTY_NAME, else NAME; empty if it has neither.
std::string NameOfDistribution(std::string_view osRelease);

}  // namespace kelvra::platform
