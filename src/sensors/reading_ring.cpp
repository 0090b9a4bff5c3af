// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensors/reading_ring.h"

#include <cmath>

#include "util/levels.h"

namespace kelvra::sensors {

namespace {

// Sum of f over the values, in several strands that don't wait for each other.
template <class Function>
double SumOf(std::span<const double, ReadingRing::Length> values, Function f) {
    constexpr std::size_t strands = 6;
    static_assert(ReadingRing::Length % strands == 0);
    std::array<double, strands> sums{};
    for (std::size_t i = 0; i < values.size(); i += strands)
        for (std::size_t s = 0; s < strands; ++s) sums[s] += f(values[i + s]);
    return ((sums[0] + sums[1]) + (sums[2] + sums[3])) + (sums[4] + sums[5]);
}

}  // namespace

void ReadingRing::Add(double powerW) {
    if (++index_ == Length) {
        index_ = 0;
        wrapped_ = true;
    }
    const auto place = static_cast<std::size_t>(index_);
    values_[place] = powerW;
    levels_[place] = util::W2dBm(std::abs(powerW));
}

std::optional<double> ReadingRing::Sigma() const {
    if (!Full()) return std::nullopt;
    const double mean = SumOf(levels_, [](double level) { return level; }) / Length;
    const double squares = SumOf(levels_, [mean](double level) {
        return (level - mean) * (level - mean);
    });
    return std::sqrt(squares / (Length - 1));
}

}  // namespace kelvra::sensors
