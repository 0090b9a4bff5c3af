// SPDX-License-Identifier: GPL-3.0-or-later
// The system's time stamps as local time, for the clock and for the dates of files.
#pragma once

#include <ctime>
#include <optional>

#include "platform/files.h"

namespace kelvra::platform {

// Nothing for a moment whose year has no local form.
std::optional<LocalTime> LocalTimeOf(const std::timespec& moment);

}  // namespace kelvra::platform
