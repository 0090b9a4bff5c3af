// SPDX-License-Identifier: GPL-3.0-or-later
// How a failure travels through a calculation: as a value that is not finite. A calculation that
// could make an intermediate value finite again (1 / x, exp(-x)) checks it first.
#pragma once

#include <cmath>
#include <limits>

namespace kelvra::parser {

inline constexpr double Failed = std::numeric_limits<double>::quiet_NaN();

// The value itself, or Failed if it has overflowed.
inline double Checked(double value) {
    return std::isfinite(value) ? value : Failed;
}

}  // namespace kelvra::parser
