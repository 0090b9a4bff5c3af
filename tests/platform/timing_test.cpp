// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>

#include "platform/clock.h"
#include "platform/timer_list.h"

namespace kelvra::platform {

using namespace std::chrono_literals;

TEST(SetClock, GoesOnOverMidnightAndLeapDaysAndNeverBack) {
    const struct {
        LocalTime start;
        Duration elapsed;
        int year, month, day;
        double seconds;
    } cases[] = {
        {{2004, 2, 28, 23, 59, 59, 999}, 1ms, 2004, 2, 29, 0},
        {{1999, 12, 31, 0, 0, 0, 0}, 24h + 61s + 999999ns, 2000, 1, 1, 61},
    };
    for (const auto& [start, elapsed, year, month, day, seconds] : cases) {
        SetClock clock(start);
        clock.Sleep(elapsed);
        clock.AdvanceTo(elapsed - 1ms);
        EXPECT_EQ(clock.Monotonic(), elapsed);
        const LocalTime now = clock.Now();
        EXPECT_TRUE(now.year == year && now.month == month && now.day == day) << year;
        EXPECT_DOUBLE_EQ(now.SecondsSinceMidnight(), seconds);
    }
}

class TimerListTest : public testing::Test {
protected:
    std::function<void()> Note(char name) {
        return [this, name] { ran_ += name; };
    }

    TimerList timers_;
    std::string ran_;
};

TEST_F(TimerListTest, RunsInTheOrderOfTheDueTimesAndDropsMissedTicks) {
    timers_.Stop(timers_.Start(0s, 1s, Note('x')));
    EXPECT_EQ(timers_.NextDue(), std::nullopt);
    timers_.Start(0s, 5s, Note('a'));
    timers_.Start(1s, 3s, Note('b'));
    timers_.RunDue(3999ms);
    EXPECT_EQ(ran_, "");
    timers_.RunDue(5s);
    EXPECT_EQ(ran_, "ba");
    EXPECT_EQ(timers_.NextDue(), 7s);
    timers_.RunDue(30500ms);
    timers_.RunDue(30500ms);
    EXPECT_EQ(ran_, "baba");
    EXPECT_EQ(timers_.NextDue(), 33500ms);
}

TEST_F(TimerListTest, NeverRunsATimerInsideItselfNorTwiceForOneTick) {
    timers_.Start(0s, 1s, [this] {
        ran_ += '(';
        timers_.RunDue(1500ms);
        ran_ += ')';
    });
    timers_.Start(0s, 1s, Note('b'));
    timers_.RunDue(1s);
    EXPECT_EQ(ran_, "(b)");
}

TEST_F(TimerListTest, MayStopItselfAndOthersAndStartMoreWhileRunning) {
    Events::TimerId self = 0;
    Events::TimerId other = 0;
    self = timers_.Start(0s, 1s, [&] {
        ran_ += 'a';
        timers_.Stop(self);
        timers_.Stop(other);
        for (int i = 0; i < 100; ++i) timers_.Start(1s, 1s, Note('n'));
    });
    other = timers_.Start(0s, 1s, Note('b'));
    timers_.RunDue(1s);
    EXPECT_EQ(ran_, "a");
    timers_.RunDue(2s);
    EXPECT_EQ(ran_, 'a' + std::string(100, 'n'));
}

}  // namespace kelvra::platform
