// SPDX-License-Identifier: GPL-3.0-or-later
// The ranges of the setup dialog's numbers, as far as they follow from what a number means and from
// how it is stored and fetched. What a sensor allows beyond that, its driver decides.
#pragma once

#include <cstdint>
#include <limits>

#include "controls/range.h"

namespace kelvra::forms::ranges {

using controls::Range;

constexpr double MostResults = 1024;  // of one measurement

constexpr Range Positive{0, Range::Unlimited, "", true};
constexpr Range NotNegative{0};
constexpr Range Fraction{0, 1};
constexpr Range Percent{0, 100};
constexpr Range Digits{1, 4};
constexpr Range Count{1, std::numeric_limits<std::int32_t>::max()};
constexpr Range Points{1, MostResults, "points"};
constexpr Range Readings{1, MostResults, "readings"};
constexpr Range Slots{1, MostResults, "time slots"};
constexpr Range SlotNumber{1, MostResults};

}  // namespace kelvra::forms::ranges
