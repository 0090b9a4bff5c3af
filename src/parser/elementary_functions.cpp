// SPDX-License-Identifier: GPL-3.0-or-later
#include "parser/elementary_functions.h"

#include <cmath>

#include "parser/constants.h"
#include "parser/results.h"
#include "util/number_reading.h"

namespace kelvra::parser {

double Power(double a, double b) {
    if (std::isnan(b)) return Failed;  // std::pow gives 1 for 1 to the power NaN
    return std::pow(a, b);
}

double Sign(double a) {
    return a > 0 ? 1 : a < 0 ? -1 : 0;
}

double ArcCosine(double a) {
    if (a == 1) return 0;
    if (a == -1) return Pi;
    return std::atan(-a / std::sqrt(1 - a * a)) + 2 * std::atan(1.0);
}

double ArcSine(double a) {
    if (std::abs(a) == 1) return Sign(a) * Pi / 2;
    return std::atan(a / std::sqrt(1 - a * a));
}

double HyperbolicCosine(double a) {
    return (std::exp(a) + std::exp(-a)) / 2;
}

double HyperbolicSine(double a) {
    return (std::exp(a) - std::exp(-a)) / 2;
}

double HyperbolicTangent(double a) {
    const double up = std::exp(a);
    const double down = std::exp(-a);
    return (up - down) / (up + down);
}

double AreaCosine(double a) {
    return std::log(a + std::sqrt(a * a - 1));
}

double AreaSine(double a) {
    return std::log(a + std::sqrt(a * a + 1));
}

double AreaTangent(double a) {
    return std::log((1 + a) / (1 - a)) / 2;
}

double RoundTo(double a, double b) {
    const auto decimals = util::RoundToInt32(b);
    if (!decimals) return Failed;
    const double scale = std::pow(10.0, *decimals);
    const double scaled = a * scale;
    double whole = std::floor(scaled);
    if (scaled - whole > 0.5) ++whole;
    return whole / scale;
}

}  // namespace kelvra::parser
