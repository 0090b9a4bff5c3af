// SPDX-License-Identifier: GPL-3.0-or-later
// The end of a run: of a measurement by Stop, of the program by Exit, at any moment.
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::app {

using test::FaultyFiles;
using test::WholeKelvra;

class ExitTest : public testing::Test, public WholeKelvra {};

TEST_F(ExitTest, SavesTheSettingsOfThePresentSensorsAndNothingElse) {
    folder.Put("Kelvra.INI", "; mine\r\n[other]\r\nkey=1\r\n");
    StartWith(1);
    program->table[0].Settings.TrigLevel = -3;
    program->table[1].Settings.TrigLevel = -4;  // nobody is there
    PressExit();
    PressExit();
    const std::string saved = folder.Get("Kelvra.INI");
    EXPECT_EQ(saved.find("; mine\r\n[other]\r\nkey=1\r\n[PS-101;1_MODE]\r\n"), 0U);
    EXPECT_NE(saved.find("level=-3\r\n"), std::string::npos);
    EXPECT_EQ(saved.find("level=-4"), std::string::npos);
    EXPECT_EQ(driver.Count("TeskCloseDriver"), 1);
    EXPECT_TRUE(fake.events.quit);
    EXPECT_FALSE(program->table[0].Present);
    StartWith(0);
    EXPECT_EQ(program->table[0].Settings.TrigLevel, -3);
}

TEST_F(ExitTest, WritesNoSimulatedSensor) {
    Start();
    PressExit();
    EXPECT_EQ(folder.Get("Kelvra.INI"), "(none)");
}

TEST_F(ExitTest, AFailedSaveKeepsTheOldFileAndIsTold) {
    const std::string before = "[PS-101;1_TRIG]\r\nlevel=-12\r\n";
    StartWith(1);
    int failed = 0;
    for (int n = 1;; ++n) {
        folder.Put("Kelvra.INI", before);
        Start();
        program->table[0].Settings.TrigLevel = 5;
        files.Plan(n, FaultyFiles::Fault::Fail);
        PressExit();
        const bool faultMet = files.Operations() >= n;
        files.Plan(0, FaultyFiles::Fault::None);
        const std::string left = folder.Get("Kelvra.INI");
        if (!faultMet) break;
        ++failed;
        EXPECT_TRUE(left == before || left.starts_with("[PS-101;1_TRIG]\r\nlevel=5\r\n"))
            << n << left;
        EXPECT_TRUE(
            Notice().starts_with("The settings could not be saved: " + folder.Path("Kelvra.INI")))
            << n << Notice();
        EXPECT_EQ(folder.Names().size(), 1U) << n;
        EXPECT_TRUE(fake.events.quit);
    }
    EXPECT_GT(failed, 7);
}

TEST_F(ExitTest, AFileOfTheUsersChoiceCarriesSettingsFromOneSensorToAnother) {
    StartWith(2);
    auto& main = program->forms.mdiMain;
    program->table[0].Settings.TSlotCount = 17;
    program->table[0].Settings.ContMeas = true;
    fake.dialogs.fileAnswer = folder.Path("mine.ini");
    main.Save_Sensor_Settings.Press();
    EXPECT_EQ(fake.dialogs.fileQuestion.proposed, folder.Path("Settings.ini"));
    program->table.CurrentSensor = 1;
    main.Load_Sensor_Settings.Press();
    EXPECT_EQ(program->table[1].Settings, program->table[0].Settings);
    EXPECT_FALSE(program->table[1].Settings.ContMeas);
    EXPECT_FALSE(program->table[1].SettingsChanged);
    const std::string saved = folder.Get("mine.ini");
    program->table[1].Settings.TSlotCount = 3;
    files.Plan(4, FaultyFiles::Fault::Fail);
    main.Save_Sensor_Settings.Press();
    EXPECT_EQ(folder.Get("mine.ini"), saved);
    ASSERT_EQ(fake.dialogs.messages.size(), 1U);
    EXPECT_TRUE(fake.dialogs.messages[0].text.starts_with("The settings could not be saved.\r\n" +
                                                          folder.Path("mine.ini") + "\r\n"));
}

// A measurement with every kind of event round: while opening, polling, fetching and pacing; and
// with changed settings, which are transferred between passes.
class MeasuringKelvra : public WholeKelvra {
public:
    MeasuringKelvra() {
        StartWith(2);
        fake.events.roundTime = std::chrono::milliseconds(60);
        program->state.RecordInterval = 1;
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
            if (now == 12) program->table[1].SettingsChanged = true;
            if (now == round) {
                done = true;
                act();
            } else if (program->state.Passes == 2) {
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

TEST(AnyMoment, StopEndsAMeasurementWithItsSessionClosedOnce) {
    int round = 1;
    for (;; ++round) {
        MeasuringKelvra run;
        if (!run.With(round, [&] { run.PressStop(); })) break;
        EXPECT_EQ(run.driver.Count("psdrv_close"), run.Opened()) << round;
        EXPECT_TRUE(run.Opened() == 0 || run.driver.calls.back() == "psdrv_close(12)") << round;
        EXPECT_TRUE(run.program->forms.mdiMain.StartIt.Enabled) << round;
        EXPECT_FALSE(run.program->forms.mdiMain.StopIt.Enabled) << round;
        EXPECT_FALSE(run.program->state.Measuring || run.program->state.commandRuns) << round;
        EXPECT_TRUE(run.program->forms.setupForm.ActionFrame.Enabled) << round;
        EXPECT_EQ(run.program->session.instrumentHandle, 0U) << round;
    }
    EXPECT_GT(round, 25);
}

TEST(AnyMoment, ExitEndsTheProgramWithItsSessionClosedOnceAndCallsNothingMore) {
    int round = 1;
    for (;; ++round) {
        MeasuringKelvra run;
        std::size_t calls = 0;
        int rounds = 0;
        const bool done = run.With(round, [&] {
            run.program->table[0].Settings.TrigLevel = -3;
            run.PressExit();
            calls = run.driver.calls.size();
            rounds = run.fake.events.rounds;
        });
        if (!done) break;
        EXPECT_EQ(run.driver.calls.size(), calls) << round << run.driver.calls.back();
        EXPECT_EQ(run.driver.calls.back(), "TeskCloseDriver()") << round;
        EXPECT_EQ(run.driver.Count("psdrv_close"), run.Opened()) << round;
        EXPECT_EQ(run.fake.events.rounds, rounds) << round;
        EXPECT_TRUE(run.fake.events.quit) << round;
        EXPECT_NE(run.folder.Get("Kelvra.INI").find("level=-3\r\n"), std::string::npos) << round;
        EXPECT_FALSE(run.program->state.commandRuns) << round;
    }
    EXPECT_GT(round, 25);
}

TEST(AnyMoment, StopAndExitWhileAMessageBoxStandsEndTheStart) {
    const struct {
        std::string_view function;
        int sessions;
    } cases[] = {
        {"psdrv_init", 0},
        {"psdrv_AddSensor", 1},
    };
    for (const auto& c : cases) {
        for (const bool exits : {false, true}) {
            MeasuringKelvra run;
            run.driver.status = [&](std::string_view name, int) {
                return name == c.function ? -5 : 0;
            };
            run.fake.dialogs.onMessage = [&] { exits ? run.PressExit() : run.PressStop(); };
            run.PressStart();
            EXPECT_EQ(run.fake.dialogs.messages.size(), 1U) << c.function << exits;
            EXPECT_EQ(run.driver.Count("psdrv_close"), c.sessions) << c.function << exits;
            EXPECT_EQ(run.driver.Count("psdrv_chan_reset"), c.sessions);
            EXPECT_EQ(run.driver.calls.back() == "TeskCloseDriver()", exits);
            EXPECT_TRUE(run.program->forms.mdiMain.StartIt.Enabled);
        }
    }
}

}  // namespace kelvra::app
