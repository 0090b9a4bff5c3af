// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>

#include "platform/timer_list.h"

namespace kelvra::platform {

using namespace std::chrono_literals;

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
