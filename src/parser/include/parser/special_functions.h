// SPDX-License-Identifier: GPL-3.0-or-later
// Higher functions of the formula language. The methods, constants and ends of summation are fixed;
// the comments say how many digits they lose. A power or an exponential that overflows on the way
// fails, as does an argument outside the domain: the value is not finite.
#pragma once

namespace kelvra::parser {

// Defined everywhere. Errors stay near 1E-15 down to -9. Below that the series stops too early
// (-12: 5E-6 off; from -16 down: far from -1), and from about -60 down it fails.
double ErrorFunction(double x);

// Relative error 2E-15 near 1, 7E-15 at 10, 2E-13 at 171; fails beyond 171.62. Below 0 it gives a
// value where the result is positive (5E-12 off at -1.5, wrong from -3 down) and fails elsewhere.
double Gamma(double x);

// Absolute error 4E-15 below 10, relative 2E-15 above. Near 1 and 2, where the logarithm nears 0,
// few digits are left. Fails beyond about 2.7E8, where the exponent exceeds 32 bits.
double GammaLn(double x);

// Absolute error 1E-15 above 0 and 2E-15 above -1. Below that the shift by 8 no longer reaches the
// range of the series (3E-12 at -3, 1E-5 at -5, no digits further down). Fails at whole numbers
// from 0 down, below -7, and beyond 1.0E14, where z^22 overflows.
double Digamma(double x);

// Computed from three logarithms: the relative error is the sum of their absolute errors, 1E-14 for
// small arguments, 1E-13 for 100.
double Beta(double a, double b);

// Relative error 5E-16 above 1.1, 1E-15 between 0 and .9, growing towards the pole at 1 (1E-16 over
// the distance). Below 0 the alternating sum cancels: 1E-11 at -2, 1E-8 at -3. Below -3.3 rounding
// keeps it from ending before it overflows, except for some whole numbers, where it is exact or
// nearly so. Also fails from 178 on, where (k + 1)^s overflows.
double Zeta(double s);

// 0 at and below 0 (by definition here). Relative error 1E-15, 6E-15 just above 34.54, where the
// series change; absolute 1E-15 around the root at .3725. Fails beyond 709.78.
double ExponentialIntegral(double x);

}  // namespace kelvra::parser
