// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensors/reading_ring.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "util/levels.h"
#include "util/number_text.h"
#include "util/random.h"

namespace kelvra::sensors {

TEST(ReadingRing, HasASpreadFromItsThirtiethReadingOn) {
    ReadingRing ring;
    EXPECT_EQ(ring.Index(), -1);
    for (int i = 0; i < 29; ++i) {
        ring.Add(0.001);
        EXPECT_EQ(ring.Index(), i);
        EXPECT_FALSE(ring.Sigma()) << i;
    }
    ring.Add(0.001);
    EXPECT_EQ(ring.Sigma(), 0);
    EXPECT_FALSE(ring.Wrapped());
    ring.Add(0.5);
    EXPECT_EQ(ring.Index(), 0);
    EXPECT_TRUE(ring.Wrapped());
    EXPECT_EQ(ring.Values()[0], 0.5);
    ring.Reset();
    EXPECT_EQ(ring.Index(), -1);
    EXPECT_FALSE(ring.Wrapped());
    EXPECT_FALSE(ring.Sigma());
}

// As one would do it without keeping the levels: take all thirty readings, convert, two passes.
double SigmaAfresh(const ReadingRing& ring) {
    std::vector<double> levels(ring.Values().begin(), ring.Values().end());
    util::ArrayW2dBm(levels);
    double mean = 0;
    for (const double level : levels) mean += level / ReadingRing::Length;
    double squares = 0;
    for (const double level : levels) squares += (level - mean) * (level - mean);
    return std::sqrt(squares / (ReadingRing::Length - 1));
}

TEST(ReadingRing, ShowsTheDigitsOfASpreadThatIsComputedAfresh) {
    ReadingRing ring;
    util::Random random(3);
    const util::NumberForm form;
    for (int i = 0; i < 200; ++i) {
        ring.Add((random.Next() - 0.3) * std::pow(10, -i / 20));
        if (!ring.Full()) continue;
        EXPECT_EQ(util::FixedText(ring.Sigma().value(), 9, form),
                  util::FixedText(SigmaAfresh(ring), 9, form))
            << i;
    }
}

TEST(ReadingRing, DividesByOneLessThanThirty) {
    ReadingRing ring;
    for (int i = 0; i < 15; ++i) {
        ring.Add(0.001);  // 0 dBm
        ring.Add(-0.01);  // 10 dBm by its magnitude
    }
    EXPECT_NEAR(ring.Sigma().value(), std::sqrt(30 * 25.0 / 29), 1e-12);
}

}  // namespace kelvra::sensors
