// SPDX-License-Identifier: GPL-3.0-or-later
// A formula compiled and evaluated, and its expression table, as one line of JSON.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "platform/host.h"

namespace kelvra::console {

// Variables without a value are 0. The table lists the entries from 1 on.
std::string EvaluateToJson(std::string_view formula,
                           const std::map<std::string, double, std::less<>>& variables,
                           platform::Host& host);

}  // namespace kelvra::console
