// SPDX-License-Identifier: GPL-3.0-or-later
// The sensor models that the bench can imitate and how they differ.
#pragma once

#include <cstdint>
#include <string_view>

namespace kelvra::virtual_sensors {

struct Model {
    std::string_view type;
    uint32_t productId;
    bool timeResolving;  // offers all modes, the others only the continuous average
    double smallestDbm;
    double largestDbm;

    // The two limits are in the range, also with a rounding error.
    bool Measures(double levelDbm) const;
};

double DbmOf(double powerW);

// A type that is not in the table is imitated as an average-only sensor with product id 0x004.
const Model& ModelOf(std::string_view type);

}  // namespace kelvra::virtual_sensors
