// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <cmath>

#include "parser/results.h"
#include "parser/special_functions.h"

namespace kelvra::parser {

double Zeta(double s) {
    constexpr int lastTerm = 1000;
    constexpr double enough = 1e-16;
    std::array<double, lastTerm + 1> powers{};  // (k + 1)^s, as far as they were needed
    double total = 0;
    double weight = 1;
    for (int n = 0; n <= lastTerm; ++n) {
        powers[n] = Checked(std::pow(n + 1, s));
        double sum = 0;
        double choices = 1;  // C(n, k) with the sign of (-1)^k
        for (int k = 0; k <= n; ++k) {
            if (k > 0) choices = -choices * (n - k + 1) / k;
            sum += choices / powers[k];
        }
        weight /= 2;
        const double term = weight * sum;
        total += term;
        if (!(std::abs(term) >= enough)) break;  // small enough, or failed
    }
    return total / Checked(1 - std::pow(2.0, 1 - s));
}

}  // namespace kelvra::parser
