// SPDX-License-Identifier: GPL-3.0-or-later
// Constants of the formula language. They have 15 digits, as formulas have always had, so that
// results agree to the last digit shown; constants of full precision would give others.
#pragma once

namespace kelvra::parser {

inline constexpr double Pi = 3.14159265358979;
inline constexpr double TwoPi = 6.28318530717959;
inline constexpr double EulerGamma = 0.577215664901532;

}  // namespace kelvra::parser
