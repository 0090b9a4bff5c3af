// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/clock.h"

#include <gtest/gtest.h>

namespace kelvra::platform {

using namespace std::chrono_literals;

TEST(SetClock, GoesOnOverMidnightAndLeapDays) {
    const struct {
        LocalTime start;
        Duration elapsed;
        int year, month, day;
        double seconds;
    } cases[] = {
        {{2005, 3, 7, 12, 0, 0, 0}, 1500ms, 2005, 3, 7, 12 * 3600 + 1.5},
        {{2004, 2, 28, 23, 59, 59, 999}, 1ms, 2004, 2, 29, 0},
        {{2005, 2, 28, 23, 0, 0, 0}, 1h, 2005, 3, 1, 0},
        {{1999, 12, 31, 0, 0, 0, 0}, 24h + 61s + 999999ns, 2000, 1, 1, 61},
    };
    for (const auto& c : cases) {
        SetClock clock(c.start);
        clock.Sleep(c.elapsed);
        const LocalTime now = clock.Now();
        EXPECT_EQ(now.year, c.year);
        EXPECT_EQ(now.month, c.month);
        EXPECT_EQ(now.day, c.day);
        EXPECT_DOUBLE_EQ(now.SecondsSinceMidnight(), c.seconds);
    }
}

TEST(SetClock, NeverGoesBack) {
    SetClock clock({});
    clock.Advance(5s);
    clock.AdvanceTo(3s);
    EXPECT_EQ(clock.Monotonic(), 5s);
    clock.AdvanceTo(8s);
    EXPECT_EQ(clock.Monotonic(), 8s);
    EXPECT_EQ(clock.Now().second, 8);
}

}  // namespace kelvra::platform
