// SPDX-License-Identifier: GPL-3.0-or-later
// Reads scenarios as docs/virtual_sensors.md describes them. The input may be any bytes. The first
// error is reported with its line, and the scenario is then empty.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "scenario.h"

namespace kelvra::virtual_sensors {

struct ScenarioResult {
    Scenario scenario;  // without sensors when there is an error
    std::string error;  // "name:line: what is wrong", empty without an error
};

ScenarioResult ReadScenario(std::string_view text, std::string_view name);

// Files of more than 1 MiB are refused.
ScenarioResult LoadScenario(const std::string& path);

}  // namespace kelvra::virtual_sensors
