// SPDX-License-Identifier: GPL-3.0-or-later
#include "operations.h"

#include <algorithm>
#include <array>

namespace kelvra::virtual_sensors {
namespace {

constexpr std::array<SettingLimits, SettingCount> Limits{{
#define X(name, type, smallest, largest, reset) {#name, smallest, largest, reset},
    KELVRA_VIRTUAL_SETTINGS(X) KELVRA_VIRTUAL_PARTS(X)
#undef X
}};

constexpr std::array<std::string_view, OperationCount> Names{
#define X(name, ...) "psdrv_" #name,
    KELVRA_VIRTUAL_SETTINGS(X)
#undef X
#define X(name) #name,
        KELVRA_VIRTUAL_ACTIONS(X)
#undef X
};

}  // namespace

const SettingLimits& LimitsOf(Setting setting) {
    return Limits[static_cast<std::size_t>(setting)];
}

std::string_view NameOf(Operation operation) {
    return Names[static_cast<std::size_t>(operation)];
}

std::optional<Operation> FindOperation(std::string_view name) {
    const auto found = std::find(Names.begin(), Names.end(), name);
    if (found == Names.end()) return std::nullopt;
    return static_cast<Operation>(found - Names.begin());
}

}  // namespace kelvra::virtual_sensors
