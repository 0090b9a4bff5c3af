// SPDX-License-Identifier: GPL-3.0-or-later
// How a failure travels through a calculation: as a value that is not finite. Whoever uses an
// intermediate value in a way that could make it finite again (1 / x, exp(-x)) checks it first.
#pragma once

#include <cmath>
#include <limits>

namespace kelvra::parser {

inline constexpr double Failed = std::numeric_limits<double>::quiet_NaN();

// The value itself, or Failed when it has overflowed.
inline double Checked(double value) {
    return std::isfinite(value) ? value : Failed;
}

}  // namespace kelvra::parser
