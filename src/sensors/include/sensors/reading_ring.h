// SPDX-License-Identifier: GPL-3.0-or-later
// The last thirty readings of one channel or one time slot, and their spread. Knows nothing of
// sensors; the cycle decides who reads and when.
#pragma once

#include <array>
#include <optional>
#include <span>

namespace kelvra::sensors {

// Over the thirty levels: mean in dBm, sample standard deviation (divided by n - 1) in dB.
struct LevelStatistics {
    double max = 0;
    double min = 0;
    double mean = 0;
    double sigma = 0;
};

class ReadingRing {
public:
    static constexpr int Length = 30;

    // Takes a power in W, of either sign.
    void Add(double powerW);
    void Reset() { *this = ReadingRing(); }

    // The ring (unused places are 0), the index of the last reading (-1: none yet), and whether
    // writing has wrapped around to the front.
    std::span<const double, Length> Values() const { return values_; }
    int Index() const { return index_; }
    bool Wrapped() const { return wrapped_; }

    // The ring holds thirty readings.
    bool Full() const { return wrapped_ || index_ == Length - 1; }

    // Level in dBm of the last reading's magnitude. Requires a reading.
    double LastLevel() const { return levels_[static_cast<std::size_t>(index_)]; }

    // Nothing before the ring is full. The levels are kept as they come, so that a reading costs
    // one logarithm.
    std::optional<double> Sigma() const;
    std::optional<LevelStatistics> Statistics() const;

private:
    std::array<double, Length> values_{};
    std::array<double, Length> levels_{};
    int index_ = -1;
    bool wrapped_ = false;
};

}  // namespace kelvra::sensors
