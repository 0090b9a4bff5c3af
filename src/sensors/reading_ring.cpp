// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensors/reading_ring.h"

#include <algorithm>
#include <cmath>

#include "util/levels.h"

namespace kelvra::sensors {

namespace {

// Sums of the differences from a pivot and of their squares, in two strands that the compiler
// computes in parallel.
struct Sums {
    double first = 0;
    double squares = 0;
};

Sums SumsAbout(double pivot, std::span<const double, ReadingRing::Length> values) {
    constexpr std::size_t strands = 2;
    static_assert(ReadingRing::Length % strands == 0);
    std::array<double, strands> first{};
    std::array<double, strands> squares{};
    for (std::size_t i = 0; i < values.size(); i += strands)
        for (std::size_t s = 0; s < strands; ++s) {
            const double difference = values[i + s] - pivot;
            first[s] += difference;
            squares[s] += difference * difference;
        }
    return {first[0] + first[1], squares[0] + squares[1]};
}

// One pass. The pivot is one of the levels, so the difference of the two terms loses no more than a
// factor of Length + 1 of the precision, however far apart the levels are.
double SigmaOf(const Sums& sums) {
    constexpr int n = ReadingRing::Length;
    return std::sqrt((n * sums.squares - sums.first * sums.first) / (n * (n - 1)));
}

}  // namespace

void ReadingRing::Add(double powerW) {
    if (++index_ == Length) {
        index_ = 0;
        wrapped_ = true;
    }
    const auto place = static_cast<std::size_t>(index_);
    values_[place] = powerW;
    levels_[place] = util::WToDbm(std::abs(powerW));
}

std::optional<double> ReadingRing::Sigma() const {
    if (!Full()) return std::nullopt;
    return SigmaOf(SumsAbout(LastLevel(), levels_));
}

std::optional<LevelStatistics> ReadingRing::Statistics() const {
    if (!Full()) return std::nullopt;
    const auto [min, max] = std::minmax_element(levels_.begin(), levels_.end());
    const Sums sums = SumsAbout(LastLevel(), levels_);
    return LevelStatistics{*max, *min, LastLevel() + sums.first / Length, SigmaOf(sums)};
}

}  // namespace kelvra::sensors
