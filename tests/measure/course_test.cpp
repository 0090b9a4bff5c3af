// SPDX-License-Identifier: GPL-3.0-or-later
// What shows while a measurement goes on, and what gets in between its driver calls.
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::measure {

using std::chrono::milliseconds;
using std::chrono::seconds;

class CourseTest : public testing::Test, public test::WholeKelvra {
protected:
    std::string Strip() const { return program->forms.setupForm.lblInputError.caption.Get(); }
    bool WasCalled(const std::string& call) const {
        return std::count(driver.calls.begin(), driver.calls.end(), call) > 0;
    }
};

TEST_F(CourseTest, AFailingCallIsItsSensorsErrorUntilTheSameCallIsGood) {
    const struct {
        const char* function;
        std::int32_t mode;
        std::string error;
    } cases[] = {
        {"psdrv_meass_fetchMeasurement", 0, "A: Fetch: bad value"},
        {"psdrv_meass_fetchBufferMeasurement", 2, "A: Fetch: bad value"},
        {"psdrv_chans_initiate", 0, "A: Initiate: bad value"},
    };
    for (const auto& c : cases) {
        WholeKelvra run;
        run.StartWith(1).table[0].settings.Mode = c.mode;
        run.driver.status = [&](std::string_view name, int n) {
            return name == c.function && n <= 2 ? -7 : 0;
        };
        std::string shown[4];
        run.fake.events.onRound = [&](int) {
            const auto passes = static_cast<std::size_t>(run.program->state.passes);
            shown[passes] = run.program->forms.setupForm.lblInputError.caption;
            if (passes == 3) run.PressStop();
        };
        run.PressStart();
        EXPECT_EQ(shown[1], c.error) << c.function;
        EXPECT_EQ(shown[3], "") << c.function;
    }
}

TEST_F(CourseTest, AnErrorIsNotTakenBackByAnotherSensorsCleanTransfer) {
    StartWith(2);
    driver.status = [](std::string_view name, int n) {
        const bool refused = name == "psdrv_trigger_setCount" || name == "psdrv_trigger_setLevel";
        return refused && n == 1 ? 7 : 0;
    };
    Measure(2);
    EXPECT_EQ(driver.Count("psdrv_trigger_setCount"), 2);
    const std::string words = "\r\n  bad value\r\n  queue empty";
    EXPECT_EQ(Strip(), "A: Trigger Count" + words + "\r\nTrigger Level" + words);
    EXPECT_EQ(Notice(), Strip());
    Measure(1);  // sends them anew
    EXPECT_EQ(Strip(), "");
    EXPECT_FALSE(program->forms.mdiMain.ConnectedFrame.visible);
}

TEST_F(CourseTest, SettingsLoadedWhilePassesGoOnReachTheSensorBeforeTheirModeDoes) {
    StartWith(1);
    driver.array.assign(8, 0.5);
    folder.Put("slots.ini", "[Sensor_MODE]\r\nMode=2\r\n");
    platform::Dialogs::FileAnswer answer;
    fake.dialogs.onFileQuestion = [&](platform::Dialogs::FileAnswer given) {
        answer = std::move(given);
    };
    std::int64_t passesWhileAsked = 0;
    fake.events.onRound = [&](int) {
        if (program->state.passes == 1 && !answer)
            program->forms.mdiMain.Load_Sensor_Settings.Press();
        if (program->state.passes == 3 && passesWhileAsked == 0) {
            passesWhileAsked = program->state.passes;
            answer(platform::ChosenFile{folder.Path("slots.ini")});
            EXPECT_TRUE(program->forms.timeSlotDisp.visible);
            EXPECT_FALSE(WasCalled("psdrv_meass_fetchBufferMeasurement(12, 1, 1024)"));
        }
        if (program->state.passes == 5) PressStop();
    };
    driver.onCall = [&](std::string_view name) {
        if (name != "psdrv_meass_fetchBufferMeasurement") return;
        EXPECT_TRUE(WasCalled("psdrv_chan_mode(12, 1, 2)"));
    };
    PressStart();
    EXPECT_EQ(passesWhileAsked, 3);
    EXPECT_EQ(driver.Count("psdrv_chan_reset"), 2);
    EXPECT_GT(driver.Count("psdrv_meass_fetchBufferMeasurement"), 0);
}

TEST_F(CourseTest, TheNoticeShowsTheHighestRankAndThenTheNext) {
    StartWith(1);
    ui::Notice& notice = program->windows.notice;
    const auto shown = [&] {
        return program->forms.mdiMain.ConnectedFrame.visible ? Notice() : std::string();
    };
    const auto& image = program->forms.mdiMain.picNotice.image;
    notice.ShowDone("saved");
    EXPECT_EQ(shown() + "|" + image.Get(), "saved|noticeDone");
    notice.Awaited(0, "");
    EXPECT_EQ(shown(), "Waiting for a trigger signal at sensor 1");
    EXPECT_EQ(image.Get(), "noticeWait");
    notice.ShowFileTrouble("b", "second file");
    notice.ShowFileTrouble("a", "first file");
    EXPECT_EQ(shown() + "|" + image.Get(), "first file|noticeFiles");
    notice.ShowError("A: error");
    EXPECT_EQ(shown() + "|" + image.Get(), "A: error|noticeError");
    notice.PassSeen({}, {});
    notice.ShowError("");
    EXPECT_EQ(shown(), "first file");
    notice.EndFileTrouble("a");
    EXPECT_EQ(shown(), "second file");
    notice.EndFileTrouble("b");
    EXPECT_EQ(shown(), "saved");
    for (int tick = 0; tick < 16; ++tick) Tick();
    EXPECT_EQ(shown(), "");
    EXPECT_EQ(Notice(), "second file");  // a confirmation does not remain in the hidden label
}

TEST_F(CourseTest, TheNoticeCountsTheSensorsThatStartConfiguresAndAFailedStartSaysWhatToDo) {
    StartWith(3);
    program->table[1].enabled = false;
    const auto& main = program->forms.mdiMain;
    std::string counted;
    driver.onCall = [&](std::string_view name) {
        if (name == "psdrv_chan_reset") {
            EXPECT_EQ(Cell(counted.empty() ? 0 : 1, 3).Text(), "CONF");
            EXPECT_GT(std::exchange(fake.events.repaints, 0), 0);
            counted += Notice() + "|";
        }
        if (name == "psdrv_chans_initiate") {
            EXPECT_FALSE(main.ConnectedFrame.visible);
        }
    };
    Measure(1);
    EXPECT_EQ(counted, "Configuring 1 of 2|Configuring 2 of 2|");
    for (int slot : {0, 1, 2}) program->table[slot].enabled = false;
    PressStart();
    for (const bool failed : {true, false}) {
        EXPECT_EQ(main.NotMeasuring.visible, failed);
        EXPECT_EQ(main.StartIt.enabled, !failed);
        EXPECT_EQ(main.StopIt.enabled, failed);
        PressStop();
    }
}

TEST_F(CourseTest, TheSpeedCountsWholePassesWithoutPausesAndThePictureMovesAllTheTime) {
    const struct {
        const char* slow;    // the call that takes time
        bool sendsSettings;  // in each pass
        milliseconds pass;
        std::int32_t interval;  // s
        std::string speed;
        int pictures;  // at the end of ten seconds
    } cases[] = {
        {"psdrv_meass_fetchMeasurement", false, milliseconds(100), 0, "10 /s", 9},
        {"psdrv_chan_reset", true, milliseconds(100), 0, "10 /s", 9},
        {"psdrv_meass_fetchMeasurement", false, milliseconds(300), 2, "3 /s", 9},
        {"psdrv_meass_fetchMeasurement", false, seconds(3), 0, "0 /s", 3},
    };
    for (const auto& c : cases) {
        WholeKelvra run;
        run.StartWith(1);
        run.program->state.recordInterval = c.interval;
        run.driver.onCall = [&](std::string_view name) {
            if (name == c.slow) run.fake.clock.Advance(c.pass);
        };
        const platform::Duration began = run.fake.clock.Monotonic();
        int pictures = 0;
        std::string last = "1";
        run.fake.events.onRound = [&](int) {
            const std::string tag = run.program->forms.mdiMain.BusySign.tag;
            pictures += tag != last ? 1 : 0;
            last = tag;
            auto& entry = run.program->table[0];
            if (c.sendsSettings && entry.measPending == 0) entry.settingsChanged = true;
            if (run.fake.clock.Monotonic() - began > seconds(10)) run.PressStop();
        };
        run.PressStart();
        EXPECT_EQ(run.program->forms.mdiMain.MeasSpeedInfo.caption.Get(), c.speed);
        EXPECT_NEAR(pictures, c.pictures, 1) << c.speed;
    }
}

TEST_F(CourseTest, StopGetsThroughWithinASecondHoweverManyCallsAreSlow) {
    const struct {
        const char* from;  // calls are slow from this one on
    } cases[] = {{"psdrv_chan_reset"},
                 {"psdrv_chan_isMeasurementComplete"},
                 {"psdrv_meass_fetchMeasurement"}};
    for (const auto& c : cases) {
        WholeKelvra run;
        run.StartWith(64);
        bool slow = false;
        std::optional<platform::Duration> slowSince;
        run.driver.onCall = [&](std::string_view name) {
            slow = slow || name == c.from;
            if (!slow) return;
            if (!slowSince) slowSince = run.fake.clock.Monotonic();
            run.fake.clock.Advance(milliseconds(40));
        };
        platform::Duration stopped{};
        run.fake.events.onRound = [&](int) {
            if (!slow || stopped.count() != 0) return;
            stopped = run.fake.clock.Monotonic();
            run.PressStop();
        };
        run.PressStart();
        ASSERT_NE(stopped.count(), 0) << c.from;
        EXPECT_LT(stopped - *slowSince, seconds(1)) << c.from;
        EXPECT_LT(run.fake.clock.Monotonic() - stopped, milliseconds(200)) << c.from;
    }
}

}  // namespace kelvra::measure
