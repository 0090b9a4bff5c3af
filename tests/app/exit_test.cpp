// SPDX-License-Identifier: GPL-3.0-or-later
// The end of a run: of a measurement by Stop, of the program by Exit, at any moment.
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::app {

using test::FaultyFiles;
using test::WholeKelvra;

class ExitTest : public testing::Test, public WholeKelvra {};

TEST_F(ExitTest, AFailedSaveIsShownToWhoeverAskedForTheExit) {
    const struct {
        std::function<void()> exit;
        bool shown;
    } ways[] = {
        {[this] { PressExit(); }, true},
        {[this] { program->forms.mdiMain.PersonCloses(); }, true},
        {[this] { program->Exit(); }, false},
    };
    StartWith(1);
    fake.dialogs.onMessage = [this] {
        PressExit();
        EXPECT_FALSE(fake.events.quit);
        program->Exit();  // a signal does not wait for an answer
        EXPECT_TRUE(fake.events.quit);
    };
    for (const auto& [exit, shown] : ways) {
        Start().table[0].settings.TrigLevel = 5;
        driver.count.clear();
        fake.dialogs.messages.clear();
        files.Plan(1, FaultyFiles::Fault::Fail);
        exit();
        const std::string failure = program->store.SaveFailure();
        EXPECT_NE(failure, "");
        std::vector<test::FakeDialogs::Shown> messages;
        if (shown) messages.push_back({"", failure});
        EXPECT_EQ(fake.dialogs.messages, messages);
        EXPECT_EQ(driver.Count("TeskCloseDriver"), 1);
        EXPECT_TRUE(fake.events.quit);
    }
}

// A measurement with every kind of event round: while opening, polling, fetching and pacing; and
// with changed settings, which are transferred between passes.
class MeasuringKelvra : public WholeKelvra {
public:
    MeasuringKelvra() {
        StartWith(2);
        fake.events.roundTime = std::chrono::milliseconds(60);
        program->state.recordInterval = 1;
        driver.onCall = [this](std::string_view name) {
            if (name == "psdrv_init") fake.clock.Advance(std::chrono::milliseconds(500));
            if (name == "psdrv_chans_initiate") asked_ = 0;
        };
        driver.complete = [this](int) { return ++asked_ > 4; };
    }

    // Runs it with the act in that round; false if it has ended before.
    bool With(int round, const std::function<void()>& act) {
        bool done = false;
        fake.events.onRound = [&, round](int now) {
            if (now == 12) program->table[1].settingsChanged = true;
            if (now == round) {
                done = true;
                act();
            } else if (program->state.passes == 2) {
                PressStop();
            }
        };
        PressStart();
        return done;
    }
    int Opened() const { return driver.Count("psdrv_init"); }

private:
    int asked_ = 0;
};

TEST(AnyMoment, StopAndExitEndAMeasurementWithItsSessionClosedOnceAndExitCallsNothingMore) {
    for (const bool exits : {false, true}) {
        int round = 1;
        for (;; ++round) {
            MeasuringKelvra run;
            const auto& calls = run.driver.calls;
            std::size_t callsThen = 0;
            const bool done = run.With(round, [&] {
                run.program->table[0].settings.TrigLevel = -3;
                exits ? run.PressExit() : run.PressStop();
                callsThen = calls.size();
            });
            if (!done) break;
            EXPECT_EQ(run.driver.Count("psdrv_close"), run.Opened()) << round;
            EXPECT_FALSE(run.program->state.measuring || run.program->state.commandRuns) << round;
            EXPECT_EQ(run.fake.events.quit, exits) << round;
            if (exits) {
                EXPECT_EQ(calls.size(), callsThen) << round << calls.back();
                EXPECT_EQ(calls.back(), "TeskCloseDriver()") << round;
                EXPECT_NE(run.folder.Get("Kelvra.INI").find("level=-3\r\n"), std::string::npos);
            } else {
                EXPECT_TRUE(run.Opened() == 0 || calls.back() == "psdrv_close(12)") << round;
                EXPECT_TRUE(run.program->forms.mdiMain.StartIt.enabled) << round;
                EXPECT_FALSE(run.program->forms.mdiMain.StopIt.enabled) << round;
            }
        }
        EXPECT_GT(round, 25);
    }
}

TEST(AnyMoment, StopAndExitWhileAMessageBoxStandsEndTheStart) {
    for (const std::string failing : {"psdrv_init", "psdrv_AddSensor"}) {
        const int sessions = failing == "psdrv_init" ? 0 : 1;
        for (const bool exits : {false, true}) {
            MeasuringKelvra run;
            run.driver.status = [&](auto name, int) { return name == failing ? -5 : 0; };
            run.fake.dialogs.onMessage = [&] { exits ? run.PressExit() : run.PressStop(); };
            run.PressStart();
            EXPECT_EQ(run.fake.dialogs.messages.size(), 1U) << failing << exits;
            EXPECT_EQ(run.driver.Count("psdrv_close"), sessions) << failing << exits;
            EXPECT_EQ(run.driver.calls.back() == "TeskCloseDriver()", exits);
            EXPECT_TRUE(run.program->forms.mdiMain.StartIt.enabled);
        }
    }
}

}  // namespace kelvra::app
