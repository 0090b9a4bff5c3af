// SPDX-License-Identifier: GPL-3.0-or-later
// Whole-number functions of the formula language. Arguments are rounded to 32-bit integers (to the
// nearest, or down for Combinations). Values that do not fit fail, as does a division by 0.
#pragma once

namespace kelvra::parser {

// On the nearest whole numbers. The remainder has the sign of the dividend; the quotient is cut
// towards 0.
double Remainder(double a, double b);
double Quotient(double a, double b);

// 1 * 2 * ... * nearest(a), 1 below 1; fails from 171 on.
double Factorial(double a);

// Ways to choose b of a; 1 for a b below 1 or above a. Fails when a product on the way exceeds 32
// bits, even if the result fits, as for comb(30;15).
double Combinations(double a, double b);

// On the nearest whole numbers. The divisor may be negative if they are. The multiple is the
// unrounded product divided by the divisor.
double CommonDivisor(double a, double b);
double CommonMultiple(double a, double b);

}  // namespace kelvra::parser
