// SPDX-License-Identifier: GPL-3.0-or-later
// Elementary functions of the formula language that take more than one call of the standard
// library. Angles in radians. What is outside a function's domain, or overflows on the way, gives a
// value that is not finite. Methods are fixed; where they cost digits is said here.
#pragma once

namespace kelvra::parser {

// Fails for a negative a with a b that is not whole, for 0 to a negative power, and for a failed b.
double Power(double a, double b);

// -1, 0 or 1.
double Sign(double a);

// Through the arc tangent: relative error grows near 1 (arc cosine) where the result nears 0, about
// 1E-16 / (1 - a), and the 15 digits of pi show at -1 and 1.
double ArcCosine(double a);
double ArcSine(double a);

// From two exponentials: fail for |a| above 709.78. Sine and tangent lose digits near 0, where the
// exponentials cancel: relative error about 1E-16 / |a|.
double HyperbolicCosine(double a);
double HyperbolicSine(double a);
double HyperbolicTangent(double a);

// From one logarithm: fail for |a| above 1.3E154. The cosine loses digits near 1, sine and tangent
// near 0 (relative error about 1E-16 / |a|); the sine loses digits below -100, all of them below
// -1E7, and fails below about -9E7, where a + sqr(a * a + 1) has cancelled to nothing.
double AreaCosine(double a);
double AreaSine(double a);
double AreaTangent(double a);

// a rounded to nearest(b) decimals; a fraction of exactly one half goes down.
double RoundTo(double a, double b);

}  // namespace kelvra::parser
