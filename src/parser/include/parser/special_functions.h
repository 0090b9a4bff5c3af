// SPDX-License-Identifier: GPL-3.0-or-later
// Higher functions of the formula language. Each method, with its constants and its ends of
// summation, is fixed; what it costs in digits is said with the function. A power or an exponential
// that overflows on the way fails, as does everything outside the domain: the value is not finite.
#pragma once

namespace kelvra::parser {

// Everywhere. Errors stay near 1E-15 down to -9; further below the series ends before it has met
// the answer (-12: 5E-6 off, -16 and beyond: nothing of -1 left), from about -60 on it fails.
double ErrorFunction(double x);

// Relative error 2E-15 near 1, 7E-15 at 10, 2E-13 at 171; fails beyond 171.62. Below 0 it answers
// where the result is positive (5E-12 off at -1.5, wrong from -3 down) and fails elsewhere.
double Gamma(double x);

// Absolute error 4E-15 below 10, relative 2E-15 above: near 1 and 2, where the logarithm nears 0,
// few digits are left. Fails beyond about 2.7E8, where the exponent leaves 32 bits.
double GammaLn(double x);

// Absolute error 2E-15 above -1 and 1E-15 above 0; below, the shift by 8 no longer brings the
// argument to where the series holds (3E-12 at -3, 1E-5 at -5, nothing below). Fails at whole
// numbers from 0 down, below -7, and beyond 1.0E14, where z^22 overflows.
double Digamma(double x);

// Through three logarithms: its relative error is the sum of their absolute ones, 1E-14 for small
// arguments, 1E-13 for 100.
double Beta(double a, double b);

// Relative error 5E-16 above 1.1, 1E-15 between 0 and .9, growing towards the pole at 1 (1E-16 over
// the distance). Below 0 the alternating sum cancels: 1E-11 at -2, 1E-8 at -3, and below -3.3
// rounding keeps it from ever ending before it overflows, except for some whole numbers, where it
// is exact or nearly so. Fails from 178 on too, where (k + 1)^s overflows.
double Zeta(double s);

// 0 at and below 0 (by definition here). Relative error 1E-15, 6E-15 just above 34.54, where the
// series change; absolute 1E-15 around the root at .3725. Fails beyond 709.78.
double ExponentialIntegral(double x);

}  // namespace kelvra::parser
