// SPDX-License-Identifier: GPL-3.0-or-later
// The texts that a pass makes, and nothing else: the minimum of every pass.
#pragma once

#include <cmath>
#include <string>

#include "util/levels.h"
#include "util/number_text.h"

namespace kelvra::benchmarks {

inline void Put(std::string& cell, const std::string& text) {
    if (cell != text) cell = text;
}

// A power in W that is different each time.
inline double NextPower(double powerW) {
    return powerW < 1e-2 ? powerW * 1.013 : 1e-6;
}

// The cells of one sensor, and their texts in a pass.
struct Row {
    std::string activity, watt, dbm, sigma, count;

    void Show(double powerW, int pass) {
        const util::NumberForm form;
        const double level = util::WToDbm(powerW);
        const std::string bar(static_cast<std::size_t>(pass % 8 + 1), '|');
        Put(activity, bar + '.');
        Put(activity, bar);
        Put(watt, util::ScientificText(powerW, form));
        Put(dbm, util::FixedText(level, 3, form));
        Put(sigma, util::FixedText(level / 100, 3, form));
        Put(count, util::TrimmedNumberText(std::int64_t{pass % 64}));
    }
};

// The results of the two default formulas.
struct Formulas {
    std::string difference, ratio;

    void Show(double oneW, double otherW) {
        const util::NumberForm form;
        const double apart = std::abs(util::WToDbm(oneW) - util::WToDbm(otherW));
        const double root = std::sqrt(oneW / otherW);
        Put(difference, util::FixedText(apart, 3, form));
        Put(ratio, util::FixedText((1 + root) / (1 - root), 3, form));
    }
};

}  // namespace kelvra::benchmarks
