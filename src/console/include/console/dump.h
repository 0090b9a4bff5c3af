// SPDX-License-Identifier: GPL-3.0-or-later
// Controls, windows and the program's tables, each as one line of JSON.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "app/kelvra.h"
#include "controls/control.h"

namespace kelvra::console {

std::string DumpControl(const controls::Control& control);

// "Sensors", "Scaling", "SlotReadings", "Flags"; nothing for another name.
std::optional<std::string> DumpTable(const app::Kelvra& kelvra, std::string_view name);

}  // namespace kelvra::console
