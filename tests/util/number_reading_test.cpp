// SPDX-License-Identifier: GPL-3.0-or-later
#include "util/number_reading.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace kelvra::util {

TEST(LenientNumber, StopsAtTheFirstCharacterThatIsNoNumber) {
    const struct {
        std::string_view text;
        double value;
        std::size_t length;
    } cases[] = {
        {"12abc", 12, 2},   {"", 0, 0},        {"   ", 0, 0},  {"-", 0, 0},       {".", 0, 0},
        {"-.", 0, 0},       {"--3", 0, 0},     {"E5", 0, 0},   {"+-1", 0, 0},     {"inf", 0, 0},
        {"nan", 0, 0},      {"  7", 7, 3},     {"+3", 3, 2},   {"-.25", -.25, 4}, {"5.", 5, 2},
        {".5.", .5, 2},     {"1,5", 1, 1},     {"1e", 1, 1},   {"1e+", 1, 1},     {"1e+x", 1, 1},
        {"1E-05", 1e-5, 5}, {"2e3x", 2000, 3}, {"0x10", 0, 1}, {"1 2", 1, 1},     {"1'000", 1, 1},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(ReadNumber(c.text), c.value) << '"' << c.text << '"';
        EXPECT_EQ(ReadNumberAt(c.text).length, c.length) << '"' << c.text << '"';
    }
}

TEST(LenientNumber, LeavesTheRangeOnTheSideWhereTheNumberDoes) {
    const std::string zeros(400, '0');
    const struct {
        std::string text;
        double value;
    } cases[] = {
        {"1e999", INFINITY},
        {"-1e999", -INFINITY},
        {"1e99999999999", INFINITY},
        {"1e-999", 0},
        {"1" + zeros, INFINITY},
        {"-1" + zeros, -INFINITY},
        {"0." + zeros + "1", 0},
        {"4.9e-324", 4.9e-324},
        {"1.7976931348623157e308", 1.7976931348623157e308},
        {"1" + zeros + "e-400", 1},
        {"." + zeros + "1e401", 1},
        {"0e99999999999", 0},
    };
    for (const auto& c : cases) EXPECT_EQ(ReadNumber(c.text), c.value) << c.text;
}

TEST(Rounding, GoesToTheEvenNeighbourAndNowhereOutsideTheRange) {
    const struct {
        double value;
        std::optional<std::int16_t> word;
    } words[] = {
        {0.5, 0},  {1.5, 2},         {2.5, 2},        {-0.5, 0},          {-1.5, -2},
        {2.4, 2},  {32767.4, 32767}, {32767.5, {}},   {-32768.5, -32768}, {-32769, {}},
        {NAN, {}}, {INFINITY, {}},   {-INFINITY, {}}, {1e300, {}},
    };
    for (const auto& c : words) EXPECT_EQ(RoundToInt16(c.value), c.word) << c.value;
    const struct {
        double value;
        std::optional<std::int32_t> whole;
    } wholes[] = {
        {2147483647.4, 2147483647}, {2147483647.5, {}}, {-2147483648.5, INT32_MIN},
        {-2147483649.0, {}},        {NAN, {}},          {1.5, 2},
    };
    for (const auto& c : wholes) EXPECT_EQ(RoundToInt32(c.value), c.whole) << c.value;
}

TEST(WholeNumber, StandsAloneOrNotAtAll) {
    const struct {
        std::string_view text;
        std::optional<std::int64_t> value;
    } cases[] = {
        {"12", 12},
        {"+12", 12},
        {"-12", -12},
        {"", {}},
        {"12 ", {}},
        {" 12", {}},
        {"1.0", {}},
        {"9223372036854775807", INT64_MAX},
        {"9223372036854775808", {}},
        {"+-1", {}},
        {"-", {}},
    };
    for (const auto& c : cases) EXPECT_EQ(ReadWholeNumber(c.text), c.value) << c.text;
}

}  // namespace kelvra::util
