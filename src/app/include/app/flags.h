// SPDX-License-Identifier: GPL-3.0-or-later
// The program's flags by name, for inspecting a running Kelvra: one table.
#pragma once

#include <cstdint>
#include <span>
#include <variant>

#include "app/kelvra.h"

namespace kelvra::app {

using FlagValue = std::variant<bool, std::int64_t>;

struct Flag {
    const char* name;
    FlagValue (*value)(const Kelvra& kelvra);
};

std::span<const Flag> Flags();

}  // namespace kelvra::app
