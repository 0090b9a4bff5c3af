// SPDX-License-Identifier: GPL-3.0-or-later
#include "util/levels.h"

#include <cmath>
#include <numbers>

namespace kelvra::util {

namespace {
constexpr double SmallestPowerW = 1e-100;
constexpr double DbmPerW = 30;
}  // namespace

double WToDbm(double powerW) {
    const double counted = powerW <= 0 ? SmallestPowerW : powerW;
    return 10 * (std::log(counted) / std::numbers::ln10) + DbmPerW;
}

void ArrayW2dBm(std::span<double> values) {
    for (double& value : values) value = WToDbm(std::abs(value));
}

double DbmToW(double levelDbm) {
    return std::pow(10, levelDbm / 10 - 3);
}

}  // namespace kelvra::util
