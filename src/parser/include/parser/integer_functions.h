// SPDX-License-Identifier: GPL-3.0-or-later
// Whole-number functions of the formula language. Arguments are brought into 32 bits (nearest, or
// down for Combinations) and what does not fit fails, as does a division by 0.
#pragma once

namespace kelvra::parser {

// Of the nearest whole numbers; the remainder has the sign of the dividend, the quotient is cut
// towards 0.
double Remainder(double a, double b);
double Quotient(double a, double b);

// 1 * 2 * ... * nearest(a), 1 below 1; fails from 171 on.
double Factorial(double a);

// Ways to choose b of a; 1 for every b that is no choice (below 1, above a). Fails when a product
// on the way leaves 32 bits, although the result itself may fit: comb(30;15) does.
double Combinations(double a, double b);

// Of the nearest whole numbers; the divisor may be negative when they are. The multiple is the
// unrounded product divided by the divisor.
double CommonDivisor(double a, double b);
double CommonMultiple(double a, double b);

}  // namespace kelvra::parser
