// SPDX-License-Identifier: GPL-3.0-or-later
#include "util/number_text.h"

#include <gtest/gtest.h>

#include <cmath>

#include "util/number_reading.h"
#include "util/random.h"

namespace kelvra::util {

// The tables have several cases in a line.
// clang-format off

TEST(NumberText, HasABlankForTheSignAndFifteenDigits) {
    const struct { double value; std::string_view text; } cases[] = {
        {-0.0, " 0"}, {-30, "-30"}, {-.1, "-.1"}, {.0001, " .0001"}, {-1.5e-5, "-1.5E-05"},
        {5e7, " 50000000"}, {1e-100, " 1E-100"}, {2. / 3, " .666666666666667"},
        {123456789012345, " 123456789012345"}, {1e15, " 1E+15"}, {-1.25e20, "-1.25E+20"},
        {999999999999999.9, " 1E+15"}, {0.1 + 0.2, " .3"}, {NAN, " NaN"}, {-INFINITY, "-Inf"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(NumberText(value), text);
    EXPECT_EQ(NumberText(std::int64_t{12}), " 12");
    EXPECT_EQ(NumberText(INT64_MIN), "-9223372036854775808");
    EXPECT_EQ(TrimmedNumberText(.1) + TrimmedNumberText(std::int64_t{12}), ".112");
}

TEST(ExactNumberText, ReadsBackAsTheSameDouble) {
    EXPECT_EQ(ExactNumberText(0.1), ".1");
    EXPECT_EQ(ExactNumberText(0.1 + 0.2), ".30000000000000004");
    Random random(7);
    for (int i = 0; i < 20'000; ++i) {
        const double value = (random.Next() - 0.5) * std::pow(10, random.Next() * 600 - 300);
        EXPECT_EQ(ReadNumber(ExactNumberText(value)), value) << ShortestNumberText(value);
    }
}

TEST(FixedPatterns, AreThePatternsInAnyLocale) {
    const NumberForm english{".", ","}, german{",", "."};
    const NumberForm wide{"\xD9\xAB", "\xD9\xAC"};  // separators of two bytes
    const struct { std::string text, expected; } cases[] = {
        {FixedText(-970, 3, english), "-970.000"}, {FixedText(-0.0004, 3, english), "0.000"},
        {FixedText(0.0625, 3, english), "0.062"}, {FixedText(0.1875, 3, english), "0.188"},
        {FixedText(2.5, 0, english), "2"}, {FixedText(12.5, 3, german), "12,500"},
        {FixedText(12, 1, wide), "12\xD9\xAB" "0"}, {FixedText(NAN, 3, german), "NaN"},
        {FixedText(1e300, 0, english).substr(0, 4), "1000"},
        {ScientificText(0.001, english), "1.0000E-03"}, {ScientificText(0, english), "0.0000E+00"},
        {ScientificText(-1.23456e100, english), "-1.2346E+100"},
        {ScientificText(0.5, german), "5,0000E-01"}, {ScientificText(-INFINITY, german), "-Inf"},
        {GroupedText(43200.25, german), "00.043.200,250"},
        {GroupedText(1234567890.5, english), "1,234,567,890.500"},
        {GroupedText(43200, {".", ""}), "00043200.000"},
        {GroupedText(1, wide), "00\xD9\xAC" "000\xD9\xAC" "001\xD9\xAB" "000"},
        {GeneralText(-1.5, german), "-1,5"}, {GeneralText(0.0001, english), "0.0001"},
        {GeneralText(0.00001, english), "1E-05"}, {GeneralText(1e15, german), "1E+15"},
    };
    for (const auto& [text, expected] : cases) EXPECT_EQ(text, expected);
}

}  // namespace kelvra::util
