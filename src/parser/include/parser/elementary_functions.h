// SPDX-License-Identifier: GPL-3.0-or-later
// Elementary functions of the formula language that take more than one call of the standard
// library. Angles in radians. An argument outside a function's domain, or an overflow on the way,
// gives a value that is not finite. The methods are fixed; comments say where they lose digits.
#pragma once

namespace kelvra::parser {

// Fails for a negative a and a b that is not whole, for 0 to a negative power, and for a failed b.
double Power(double a, double b);

// -1, 0 or 1.
double Sign(double a);

// Computed from the arc tangent. The relative error grows near 1 (arc cosine), where the result
// nears 0, to about 1E-16 / (1 - a); at -1 and 1 the error of the 15-digit pi shows.
double ArcCosine(double a);
double ArcSine(double a);

// Computed from two exponentials: fail for |a| above 709.78. Sine and tangent lose digits near 0,
// where the exponentials cancel: relative error about 1E-16 / |a|.
double HyperbolicCosine(double a);
double HyperbolicSine(double a);
double HyperbolicTangent(double a);

// Computed from one logarithm: fail for |a| above 1.3E154. The cosine loses digits near 1, sine and
// tangent near 0 (relative error about 1E-16 / |a|). The sine loses digits below -100, all of them
// below -1E7, and fails below about -9E7, where a + sqr(a * a + 1) cancels to 0.
double AreaCosine(double a);
double AreaSine(double a);
double AreaTangent(double a);

// a rounded to nearest(b) decimals; a fraction of exactly one half is rounded down.
double RoundTo(double a, double b);

}  // namespace kelvra::parser
