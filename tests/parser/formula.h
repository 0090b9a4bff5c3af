// SPDX-License-Identifier: GPL-3.0-or-later
// A formula with all it needs, for tests: compiled as it is made, evaluated on demand.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "parser/math_parser.h"

namespace kelvra::parser {

struct Formula {
    explicit Formula(std::string_view text, const util::NumberForm& form = {})
        : parser(random, form), compiles(parser.StoreExpression(text)) {}

    // Message of the last failure, empty if there was none.
    std::string Error() const { return parser.ErrorDescription(); }

    util::Random random{1};
    MathParser parser;
    bool compiles;
};

struct Result {
    std::string_view text;
    double value;
};

inline void ExpectValues(const std::vector<Result>& cases) {
    for (const auto& [text, value] : cases) {
        Formula formula(text);
        EXPECT_DOUBLE_EQ(formula.parser.Eval(), value) << text;
        EXPECT_EQ(formula.Error(), "") << text;
    }
}

// One text many times between two others: how a formula that repeats itself is made.
inline std::string Repeated(int count, std::string_view text, std::string_view before = {},
                            std::string_view after = {}) {
    std::string all(before);
    for (int i = 0; i < count; ++i) all += text;
    return all.append(after);
}

// "v1+v2+...", so many variables and one operation fewer.
inline std::string SumOfVariables(int count) {
    std::string sum = "v1";
    for (int i = 2; i <= count; ++i) sum.append("+v").append(std::to_string(i));
    return sum;
}

}  // namespace kelvra::parser
