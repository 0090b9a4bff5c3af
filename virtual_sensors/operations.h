// SPDX-License-Identifier: GPL-3.0-or-later
// The functions that the two libraries export and the values that they set, as enumerations made
// from the driver's list of functions, and the limits of the values. driver_abi.cpp and
// device_list_abi.cpp define what the functions do.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "driver/operation_list.h"

namespace kelvra::virtual_sensors {

// NOLINTBEGIN(readability-identifier-naming): the names are the functions' own
// clang-format off
enum class Operation : uint8_t {
#define X(name, ...) name,
    KELVRA_DRIVER_SETTERS(X)
    KELVRA_DRIVER_FUNCTIONS(X)
    KELVRA_DEVICE_LIST_FUNCTIONS(X)
#undef X
    Count
};

// A value is named after the function that sets it; the last four are set in pairs.
enum class Setting : uint8_t {
#define X(name, type) name,
    KELVRA_DRIVER_SETTERS(X)
#undef X
    SlotCount, SlotWidth, ExcludeStart, ExcludeStop,
    Count
};
// clang-format on
// NOLINTEND(readability-identifier-naming)

constexpr std::size_t SettingCount = static_cast<std::size_t>(Setting::Count);
constexpr std::size_t OperationCount = static_cast<std::size_t>(Operation::Count);

struct SettingLimits {
    Setting setting;
    double smallest;
    double largest;
    double afterReset;
};

const SettingLimits& LimitsOf(Setting setting);

// The exported name of the function.
std::string_view NameOf(Operation operation);
std::optional<Operation> FindOperation(std::string_view name);

}  // namespace kelvra::virtual_sensors
