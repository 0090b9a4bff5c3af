// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "parser/constants.h"
#include "parser/results.h"
#include "parser/special_functions.h"

namespace kelvra::parser {

namespace {

constexpr double Enough = 1e-15;

// 1 + t(1) + t(2) + ..., t(k) = t(k-1) * 2x^2 / (2k + 1).
double Series(double x) {
    constexpr int denominatorEnd = 401;
    double sum = 1;
    double term = 1;
    for (int denominator = 3; denominator < denominatorEnd && term >= Enough; denominator += 2) {
        term *= 2 * x * x / denominator;
        sum += term;
    }
    return sum;
}

// 1/(x + 2/(2x + 3/(x + 4/(2x + ...)))), evaluated forwards.
double ContinuedFraction(double x) {
    constexpr int lastDepth = 400;
    double a = 0, aBefore = 1;
    double b = 1, bBefore = 0;
    double fraction = 0;
    for (int n = 1; n <= lastDepth; ++n) {
        const double denominator = n % 2 == 1 ? x : 2 * x;
        const double aNext = denominator * a + n * aBefore;
        const double bNext = denominator * b + n * bBefore;
        aBefore = a, a = aNext;
        bBefore = b, b = bNext;
        const double fractionBefore = fraction;
        fraction = a / b;
        if (std::abs(fraction - fractionBefore) < Enough) break;
    }
    return fraction;
}

}  // namespace

double ErrorFunction(double x) {
    const double bell = std::exp(-Checked(x * x));
    if (x <= 2) return 2 * x * bell / std::sqrt(Pi) * Series(x);
    return 1 - 2 * bell / (std::sqrt(Pi) * (2 * x + ContinuedFraction(x)));
}

}  // namespace kelvra::parser
