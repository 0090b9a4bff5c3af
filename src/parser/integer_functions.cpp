// SPDX-License-Identifier: GPL-3.0-or-later
#include "parser/integer_functions.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>

#include "parser/results.h"
#include "util/number_reading.h"

namespace kelvra::parser {

namespace {

// Two 32-bit numbers, in 64 bits so that no operation on them can overflow.
struct Integers {
    std::int64_t a, b;
};

std::optional<Integers> Nearest(double a, double b) {
    const auto x = util::RoundToInt32(a);
    const auto y = util::RoundToInt32(b);
    if (!x || !y) return std::nullopt;
    return Integers{*x, *y};
}

double In32Bits(std::int64_t value) {
    return std::in_range<std::int32_t>(value) ? static_cast<double>(value) : Failed;
}

}  // namespace

double Remainder(double a, double b) {
    const auto n = Nearest(a, b);
    return n && n->b != 0 ? In32Bits(n->a % n->b) : Failed;
}

double Quotient(double a, double b) {
    const auto n = Nearest(a, b);
    return n && n->b != 0 ? In32Bits(n->a / n->b) : Failed;
}

double Factorial(double a) {
    constexpr int tooLarge = 171;
    const auto n = util::RoundToInt32(a);
    if (!n || *n >= tooLarge) return Failed;
    double product = 1;
    for (int i = 2; i <= *n; ++i) product *= i;
    return product;
}

double Combinations(double a, double b) {
    const auto whole = Nearest(std::floor(a), std::floor(b));
    if (!whole) return Failed;
    const auto [n, chosen] = *whole;
    if (chosen < 1 || chosen >= n) return 1;
    const std::int64_t k = n / 2 < chosen ? n - chosen : chosen;
    std::int64_t result = n;
    for (std::int64_t i = 2; i <= k; ++i) {
        const std::int64_t product = (n + 1 - i) * result;
        if (!std::in_range<std::int32_t>(product)) return Failed;
        result = product / i;  // leaves no remainder
    }
    return static_cast<double>(result);
}

double CommonDivisor(double a, double b) {
    auto n = Nearest(a, b);
    if (!n) return Failed;
    while (n->b != 0) n = Integers{n->b, n->a % n->b};
    return In32Bits(n->a);
}

double CommonMultiple(double a, double b) {
    return a * b / CommonDivisor(a, b);
}

}  // namespace kelvra::parser
