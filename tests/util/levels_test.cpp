// SPDX-License-Identifier: GPL-3.0-or-later
#include "util/levels.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace kelvra::util {

TEST(Levels, APowerIsItsLevelAndBack) {
    const struct {
        double powerW, levelDbm;
    } cases[] = {
        {1, 30}, {0.001, 0}, {1e-6, -30}, {2, 33.0102999566398}, {1e-100, -970},
    };
    for (const auto& c : cases) {
        EXPECT_NEAR(W2dBm(c.powerW), c.levelDbm, 1e-11) << c.powerW;
        EXPECT_NEAR(dBmToW(c.levelDbm) / c.powerW, 1, 1e-12) << c.levelDbm;
    }
}

TEST(Levels, NoPowerHasTheLowestLevelAndNoNumberStaysNone) {
    for (const double powerW : std::array<double, 4>{0, -0.0, -1, -INFINITY})
        EXPECT_NEAR(W2dBm(powerW), -970, 1e-11) << powerW;
    EXPECT_TRUE(std::isnan(W2dBm(NAN)));
    EXPECT_EQ(W2dBm(INFINITY), INFINITY);
}

TEST(Levels, AnArrayIsConvertedByMagnitude) {
    std::array values{-0.001, 0.001, 0.0};
    ArrayW2dBm(values);
    EXPECT_NEAR(values[0], 0, 1e-12);
    EXPECT_NEAR(values[1], 0, 1e-12);
    EXPECT_NEAR(values[2], -970, 1e-11);
}

}  // namespace kelvra::util
