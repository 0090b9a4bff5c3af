// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/pacing.h"

#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::measure {

using std::chrono::milliseconds;
using std::chrono::seconds;

class PacingTest : public testing::Test, public test::WholeKelvra {
protected:
    // When each pass began measuring, until that many are complete.
    std::vector<platform::Duration> Starts(int passes) {
        std::vector<platform::Duration> starts;
        driver.onCall = [&](std::string_view name) {
            if (name == "psdrv_chans_initiate") starts.push_back(fake.clock.Monotonic());
        };
        program->state.RecordInterval = 5;
        Measure(passes);
        return starts;
    }
};

TEST_F(PacingTest, PassesKeepTheIntervalAndDoNotDrift) {
    StartWith(1);
    fake.events.roundTime = milliseconds(7);
    const auto starts = Starts(50);
    ASSERT_GE(starts.size(), 50U);
    for (std::size_t i = 0; i < 50; ++i) {
        const auto late = starts[i] - starts[0] - seconds(5) * static_cast<int>(i);
        EXPECT_TRUE(late >= milliseconds(-10) && late <= milliseconds(10))
            << i << " " << late.count();
    }
}

TEST_F(PacingTest, AfterAPassThatTookLongerTheIntervalStartsAnew) {
    StartWith(1);
    int asked = 0;
    driver.complete = [&](int) {
        if (++asked == 2) fake.clock.Advance(seconds(12));
        return true;
    };
    const auto starts = Starts(4);
    ASSERT_GE(starts.size(), 4U);
    const int expected[] = {5000, 12000, 5000};
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(std::chrono::round<milliseconds>(starts[i + 1] - starts[i]).count(), expected[i])
            << i;
}

TEST_F(PacingTest, TheNoticeCountsTheSecondsThatAreLeftAndIsNoError) {
    StartWith(1);
    std::vector<std::string> seen;
    fake.events.onRound = [&](int) {
        const auto& window = program->forms.mdiMain;
        if (Notice().starts_with("Delaying") && (seen.empty() || seen.back() != Notice())) {
            EXPECT_TRUE(window.ConnectedFrame.Visible);
            seen.push_back(Notice());
        }
        EXPECT_FALSE(program->session.ErrorShown);
        if (program->state.Passes == 1) PressStop();
    };
    program->state.RecordInterval = 3;
    PressStart();
    EXPECT_EQ(seen,
              (std::vector<std::string>{"Delaying ... 3", "Delaying ... 2", "Delaying ... 1"}));
    EXPECT_EQ(Notice(), " ");
}

TEST_F(PacingTest, StopAndTheEndOfARecordingEndTheDelayAtOnce) {
    StartWith(1);
    for (const bool stop : {true, false}) {
        platform::Duration ended{};
        fake.events.onRound = [&](int) {
            if (!Notice().starts_with("Delaying") || ended.count() > 0) {
                if (ended.count() > 0) PressStop();
                return;
            }
            ended = fake.clock.Monotonic();
            if (stop)
                PressStop();
            else
                program->state.RecordInterval = 0;
        };
        program->state.RecordInterval = 3600;
        PressStart();
        EXPECT_LE(fake.clock.Monotonic() - ended, milliseconds(5)) << stop;
        EXPECT_EQ(program->state.RecordInterval, 0);
    }
}

}  // namespace kelvra::measure
