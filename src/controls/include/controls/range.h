// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers that make sense in a field, where that is known. It is for people: what is typed
// outside it is stored all the same, and the driver judges it.
#pragma once

#include <limits>
#include <string>
#include <string_view>

namespace kelvra::controls {

struct Range {
    static constexpr double Unlimited = std::numeric_limits<double>::infinity();

    double least = -Unlimited;
    double most = Unlimited;
    const char* counted = "";  // what a number without a unit counts: "points"
    bool above = false;        // the least number itself makes no sense

    bool Known() const { return least != -Unlimited; }
};

// "Range: 1 to 1024 points.", "Range: more than 0 ms.", "Range: at least 1."; empty if not known.
// The limits are in `unit`, which may be empty.
std::string RangeSentence(const Range& range, std::string_view unit);

}  // namespace kelvra::controls
