// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <string>

#include "util/levels.h"
#include "util/number_reading.h"

namespace kelvra::util {

// The tables have several cases in a line.
// clang-format off

TEST(LenientNumber, StopsAtTheFirstCharacterThatIsNoNumber) {
    const struct { std::string_view text; double value; std::size_t length; } cases[] = {
        {"12abc", 12, 2}, {"", 0, 0}, {"   ", 0, 0}, {"-.", 0, 0}, {"--3", 0, 0}, {"E5", 0, 0},
        {"inf", 0, 0}, {"nan", 0, 0}, {"  7", 7, 3}, {"+3", 3, 2}, {"-.25", -.25, 4},
        {".5.", .5, 2}, {"1,5", 1, 1}, {"1e", 1, 1}, {"1e+x", 1, 1}, {"1E-05", 1e-5, 5},
        {"0x10", 0, 1}, {"1 2", 1, 1},
    };
    for (const auto& [text, value, length] : cases) {
        EXPECT_EQ(ReadNumber(text), value) << '"' << text << '"';
        EXPECT_EQ(ReadNumberAt(text).length, length) << '"' << text << '"';
    }
}

TEST(LenientNumber, LeavesTheRangeOnTheSideWhereTheNumberDoes) {
    const std::string zeros(400, '0');
    const struct { std::string text; double value; } cases[] = {
        {"1e999", INFINITY}, {"-1e999", -INFINITY}, {"1e99999999999", INFINITY}, {"1e-999", 0},
        {"-1" + zeros, -INFINITY}, {"0." + zeros + "1", 0}, {"4.9e-324", 4.9e-324},
        {"1.7976931348623157e308", 1.7976931348623157e308}, {"1" + zeros + "e-400", 1},
        {"." + zeros + "1e401", 1}, {"0e99999999999", 0},
    };
    for (const auto& [text, value] : cases) EXPECT_EQ(ReadNumber(text), value) << text;
}

TEST(Rounding, GoesToTheEvenNeighbourAndNowhereOutsideTheRange) {
    const struct { double value; std::optional<std::int16_t> word; } words[] = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {-1.5, -2}, {2.4, 2}, {32767.4, 32767}, {32767.5, {}},
        {-32768.5, -32768}, {-32769, {}}, {NAN, {}}, {INFINITY, {}}, {-INFINITY, {}}, {1e300, {}},
    };
    for (const auto& [value, word] : words) EXPECT_EQ(RoundToInt16(value), word) << value;
    const struct { double value; std::optional<std::int32_t> whole; } wholes[] = {
        {2147483647.4, 2147483647}, {2147483647.5, {}}, {-2147483648.5, INT32_MIN},
        {-2147483649.0, {}}, {NAN, {}}, {1.5, 2},
    };
    for (const auto& [value, whole] : wholes) EXPECT_EQ(RoundToInt32(value), whole) << value;
}

TEST(WholeNumber, StandsAloneOrNotAtAll) {
    const struct { std::string_view text; std::optional<std::int64_t> value; } cases[] = {
        {"12", 12}, {"+12", 12}, {"-12", -12}, {"", {}}, {"12 ", {}}, {" 12", {}}, {"1.0", {}},
        {"9223372036854775807", INT64_MAX}, {"9223372036854775808", {}}, {"+-1", {}}, {"-", {}},
    };
    for (const auto& [text, value] : cases) EXPECT_EQ(ReadWholeNumber(text), value) << text;
}

TEST(Levels, APowerIsItsLevelAndBackAndNoPowerHasTheLowest) {
    const struct { double powerW, levelDbm; } cases[] = {
        {1, 30}, {1e-6, -30}, {2, 33.0102999566398}, {1e-100, -970}};
    for (const auto& [powerW, levelDbm] : cases) {
        EXPECT_NEAR(WToDbm(powerW), levelDbm, 1e-11) << powerW;
        EXPECT_NEAR(DbmToW(levelDbm) / powerW, 1, 1e-12) << levelDbm;
    }
    for (const double powerW : std::array<double, 4>{0, -0.0, -1, -INFINITY})
        EXPECT_NEAR(WToDbm(powerW), -970, 1e-11) << powerW;
    EXPECT_TRUE(std::isnan(WToDbm(NAN)));
    EXPECT_EQ(WToDbm(INFINITY), INFINITY);
    std::array values{-0.001, 0.0};
    ArrayW2dBm(values);  // by magnitude
    EXPECT_NEAR(values[0], 0, 1e-12);
    EXPECT_NEAR(values[1], -970, 1e-11);
}

}  // namespace kelvra::util
