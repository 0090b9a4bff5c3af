// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "parser/constants.h"
#include "parser/special_functions.h"

namespace kelvra::parser {

namespace {

constexpr double Enough = 1e-15;
constexpr int MaxTerms = 100;

// Sum of x^k / (k * k!).
double PowerSeries(double x) {
    double sum = 0;
    double power = 1;  // x^k / k!
    for (int k = 1; k <= MaxTerms; ++k) {
        power *= x / k;
        const double term = power / k;
        sum += term;
        if (term < Enough * sum) break;
    }
    return sum;
}

// 1 + 1!/x + 2!/x^2 + ..., as long as the terms decrease.
double AsymptoticSeries(double x) {
    double sum = 1;
    double term = 1;
    for (int k = 1; k <= MaxTerms; ++k) {
        const double before = term;
        term *= k / x;
        if (term < Enough) break;
        if (term >= before) return sum - before;
        sum += term;
    }
    return sum;
}

}  // namespace

double ExponentialIntegral(double x) {
    constexpr double tiny = 1e-30;
    if (x <= 0) return 0;
    if (x < tiny) return std::log(x) + EulerGamma;
    if (x <= -std::log(Enough)) return EulerGamma + std::log(x) + PowerSeries(x);
    return std::exp(x) / x * AsymptoticSeries(x);
}

}  // namespace kelvra::parser
