// SPDX-License-Identifier: GPL-3.0-or-later
// The one source of random numbers: simulated readings and the formulas' "rnd". The same seed gives
// the same numbers on every machine.
#pragma once

#include <cstdint>
#include <random>

namespace kelvra::util {

class Random {
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    // Uniform in [0, 1), in single precision.
    float Next() {
        constexpr float step = 0x1p-24F;
        return static_cast<float>(engine_() >> 40) * step;
    }

private:
    std::mt19937_64 engine_;
};

}  // namespace kelvra::util
