// SPDX-License-Identifier: GPL-3.0-or-later
// Zeroing, self test and information: their course, and that all is as before however they end.
#include "measure/sensor_commands.h"

#include <gtest/gtest.h>

#include "support/whole_kelvra.h"
#include "ui/result_columns.h"

namespace kelvra::measure {

using std::chrono::milliseconds;
using std::chrono::seconds;

// Three sensors, each of which takes a second to zero.
class CommandsKelvra : public test::WholeKelvra {
public:
    using Button = controls::Button forms::SetupForm::*;
    static constexpr Button Zero = &forms::SetupForm::SensorZero;
    static constexpr Button ZeroAll = &forms::SetupForm::cmdZeroAll;
    static constexpr Button SelfTest = &forms::SetupForm::SensSelfTest;
    static constexpr Button Information = &forms::SetupForm::SensInfo;

    explicit CommandsKelvra(int current = 0) {
        driver.onCall = [this](std::string_view name) {
            if (name == "psdrv_chan_zero") zeroBegan_ = fake.clock.Monotonic();
        };
        driver.complete = [this](int) { return fake.clock.Monotonic() - zeroBegan_ >= seconds(1); };
        driver.infos = {"Type:PS-101", "Made", "Limits: -60:20"};
        driver.averagingCount = 3;
        StartWith(3);
        program->windows.selection.Select(current);
    }

    void Press(Button button) {
        fake.events.rounds = 0;
        (program->forms.setupForm.*button).Press();
    }
    void Fail(const std::string& function, int from = 1) {
        driver.status = [=](std::string_view name, int n) {
            return name == function && n >= from ? -7 : 0;
        };
    }
    // In that round of events of a command.
    void In(int round, const std::function<void()>& act) {
        fake.events.onRound = [=](int now) {
            if (now == round) act();
        };
    }
    // What a command must leave as it was.
    std::string State() const {
        const auto& forms = program->forms;
        std::string state;
        for (const bool flag :
             {forms.mdiMain.StartIt.enabled.Get(), forms.mdiMain.StopIt.enabled.Get(),
              forms.setupForm.ActionFrame.enabled.Get(), program->session.sessionClosed,
              program->state.commandRuns, program->state.measuring})
            state += flag ? 'x' : '-';
        for (int slot = 0; slot < 3; ++slot) state += "|" + Cell(slot, ui::StatusColumn).Text();
        return state + forms.setupForm.SensorZero.picture.Get();
    }
    int Sessions() const { return driver.Count("psdrv_init"); }
    std::string Messages() const {
        std::string all;
        for (const auto& message : fake.dialogs.messages) all += message.text + "#";
        return all;
    }

private:
    platform::Duration zeroBegan_{};
};

constexpr const char* Rf = "Please disconnect RF power#";
constexpr const char* GoesOn = " has been ended. The sensor itself may go on for some seconds.";

TEST(SensorCommands, HoweverTheyEndAMessageSaysWhyAndAllIsAsBefore) {
    using Kelvra = CommandsKelvra;
    using Text = std::string;
    const struct {
        Kelvra::Button button;
        int current;
        std::function<void(Kelvra&)> happens;
        Text messages;
        int zeroings;
    } cases[] = {
        {Kelvra::Zero, 0, [](Kelvra&) {}, Rf, 1},
        {Kelvra::ZeroAll, 1, [](Kelvra&) {}, Rf, 3},
        {Kelvra::SelfTest, 0, [](Kelvra&) {}, "bad value#", 0},  // the report
        {Kelvra::SelfTest, 2, [](Kelvra& k) { k.driver.message = ""; },
         "Sensor 3 (C) has given no report.#", 0},
        {Kelvra::Zero, 1, [](Kelvra& k) { k.Fail("psdrv_init"); }, "bad value\r\n(queue empty)#",
         0},
        {Kelvra::Zero, 1, [](Kelvra& k) { k.Fail("psdrv_AddSensor"); },
         "bad value\r\n(queue empty)#", 0},
        {Kelvra::SelfTest, 0, [](Kelvra& k) { k.driver.handle = 0; },
         "Sensor 1 (A) could not be opened.#", 0},
        {Kelvra::Zero, 1, [](Kelvra& k) { k.Fail("psdrv_chan_zero"); },
         Rf + Text("Zeroing sensor 2 (B) has failed.\r\nbad value#"), 1},
        {Kelvra::ZeroAll, 0, [](Kelvra& k) { k.Fail("psdrv_chan_isZeroComplete", 30); },
         Rf + Text("Zeroing sensor 2 (B) has failed.\r\nbad value\r\nZeroed: 1 of 3 sensors.#"), 2},
        {Kelvra::Zero, 0, [](Kelvra& k) { k.driver.complete = [](int) { return false; }; },
         Rf + Text("Zeroing sensor 1 (A) has not ended within 60 s. The sensor may be defective, "
                   "or not answer.#"),
         1},
        {Kelvra::SelfTest, 0, [](Kelvra& k) { k.Fail("psdrv_chan_selfTest"); },
         "Self test of sensor 1 (A) has failed.\r\nbad value\r\nbad value#", 0},
        {Kelvra::Information, 0, [](Kelvra& k) { k.Fail("psdrv_chan_infosCount"); },
         "Reading the information of sensor 1 (A) has failed.\r\nbad value#", 0},
        {Kelvra::Information, 0, [](Kelvra& k) { k.Fail("psdrv_chan_infoHeader", 2); },
         "Reading the information of sensor 1 (A) has failed.\r\nbad value#", 0},
        {Kelvra::ZeroAll, 0, [](Kelvra& k) { k.In(30, [&k] { k.PressStop(); }); },
         Rf + Text("Zeroing sensor 2 (B)") + GoesOn + "\r\nZeroed: 1 of 3 sensors.#", 2},
        {Kelvra::Zero, 0, [](Kelvra& k) { k.In(1, [&k] { k.PressStop(); }); },
         "Zeroing has been ended.#", 0},
        {Kelvra::Zero, 0,
         [](Kelvra& k) {
             k.fake.dialogs.onMessage = [&k] {
                 k.fake.dialogs.onMessage = nullptr;
                 k.PressStop();
             };
         },
         Rf + Text("Zeroing has been ended.#"), 0},
        {Kelvra::SelfTest, 0, [](Kelvra& k) { k.In(1, [&k] { k.PressStop(); }); }, "bad value#", 0},
        {Kelvra::Zero, 0, [](Kelvra& k) { k.In(5, [&k] { k.PressStart(); }); }, Rf, 1},
        {Kelvra::Zero, 0, [](Kelvra& k) { k.In(5, [&k] { k.Press(Kelvra::ZeroAll); }); }, Rf, 1},
    };
    int number = 0;
    for (const auto& c : cases) {
        const int row = number++;
        for (const bool held : {false, true}) {
            CommandsKelvra k(c.current);
            if (held) {  // a start has failed
                for (int slot = 0; slot < 3; ++slot) k.program->table[slot].enabled = false;
                k.PressStart();
                k.fake.dialogs.messages.clear();
            }
            const std::string before = k.State();
            const platform::Duration began = k.fake.clock.Monotonic();
            c.happens(k);
            k.Press(c.button);
            EXPECT_LT(k.fake.clock.Monotonic() - began, seconds(61)) << row;
            EXPECT_EQ(k.Messages(), c.messages) << row;
            EXPECT_EQ(k.State(), before) << row << held;
            EXPECT_EQ(k.driver.Count("psdrv_chan_zero"), c.zeroings) << row;
            EXPECT_LE(k.driver.Count("psdrv_close"), k.Sessions()) << row;
            EXPECT_EQ(k.program->session.instrumentHandle, 0U) << row;
            EXPECT_FALSE(k.program->state.stopRequested) << row;
            EXPECT_EQ(k.driver.Count("psdrv_chans_initiate"), 0) << row;
        }
    }
}

TEST(SensorCommands, TheExitEndsThemAtAnyMomentAndNothingIsCalledAfterIt) {
    for (const auto button : {CommandsKelvra::ZeroAll, CommandsKelvra::SelfTest}) {
        int round = 0;  // 0: while the first box is shown
        for (bool reached = true; reached; ++round) {
            CommandsKelvra k;
            reached = false;
            const auto exit = [&] {
                reached = true;
                k.fake.dialogs.onMessage = nullptr;
                k.PressExit();
            };
            if (round == 0)
                k.fake.dialogs.onMessage = exit;
            else
                k.In(round, exit);
            k.Press(button);
            if (!reached) break;
            EXPECT_EQ(k.driver.calls.back(), "TeskCloseDriver()") << round;
            EXPECT_EQ(k.driver.Count("psdrv_close"), k.Sessions()) << round;
            EXPECT_FALSE(k.program->state.commandRuns) << round;
        }
        EXPECT_GT(round, button == CommandsKelvra::ZeroAll ? 60 : 2);
    }
}

TEST(SensorCommands, ZeroingWaitsForTheUserShowsItsProgressAndIsPolledInPeace) {
    CommandsKelvra k;
    std::function<void()> goOn;
    k.fake.dialogs.onConfirm = [&](auto confirmed) { goOn = std::move(confirmed); };
    k.Press(CommandsKelvra::ZeroAll);
    EXPECT_EQ(k.Sessions(), 0);
    EXPECT_EQ(k.State().substr(0, 6), "-x-xx-");  // Stop can be pressed
    EXPECT_EQ(k.Notice(), "Zeroing waits until you have disconnected RF power and confirmed it");
    k.PressStop();
    EXPECT_EQ(k.State().substr(0, 6), "x-xx--");
    const auto former = std::exchange(goOn, nullptr);
    k.Press(CommandsKelvra::ZeroAll);
    former();
    EXPECT_EQ(k.Sessions(), 0);
    std::string shown;
    k.fake.events.onRound = [&](int) {
        for (int slot = 0; slot < 3; ++slot) {
            const auto& cell = k.Cell(slot, ui::StatusColumn);
            if (cell.Text().empty()) continue;
            EXPECT_EQ(cell.look.back, controls::Orange);
            EXPECT_TRUE(k.program->forms.setupForm.busy);
            const std::string now = cell.Text() + ": " + k.Notice() + "|";
            if (!shown.ends_with(now)) shown += now;
        }
    };
    const auto& busy = k.program->forms.setupForm.busy;
    EXPECT_FALSE(busy);  // the user has to confirm
    goOn();
    EXPECT_FALSE(busy);
    EXPECT_EQ(shown,
              "ZERO: Zeroing sensor 1 (A), 1 of 3|ZERO: Zeroing sensor 2 (B), 2 of 3|"
              "ZERO: Zeroing sensor 3 (C), 3 of 3|");
    EXPECT_EQ(k.driver.Count("psdrv_chan_isZeroComplete"), 3 * 21);
    EXPECT_EQ(k.Sessions(), 3);
    EXPECT_EQ(k.Notice(), "3 sensors zeroed");
    goOn();  // a second time
    EXPECT_EQ(k.driver.Count("psdrv_chan_zero"), 3);
}

TEST(SensorCommands, TheRowSaysWhenItsSensorWasLastZeroedEvenAfterAnUnplug) {
    CommandsKelvra k;
    const auto zeroed = [&] {
        const std::string& tooltip = k.Cell(0, ui::NameColumn).tooltip;
        const std::size_t at = tooltip.find("S/N 1\n") + 6;
        return tooltip.substr(at, tooltip.find('\n', at) - at);
    };
    EXPECT_EQ(zeroed(), "Not zeroed in this run");
    k.Press(CommandsKelvra::Zero);
    EXPECT_EQ(zeroed(), "Zeroed at 12:0");
    for (const int connected : {0, 1}) {
        k.driver.devices[0].connected = connected;
        for (int tick = 0; tick < 2; ++tick) k.Tick();
    }
    EXPECT_EQ(k.program->table[0].sensorId, "PS-101;2");
    k.driver.devices.erase(k.driver.devices.begin() + 1, k.driver.devices.end());
    for (int tick = 0; tick < 2; ++tick) k.Tick();
    EXPECT_EQ(zeroed(), "Zeroed at 12:0");
    k.Fail("psdrv_chan_isZeroComplete");  // it may have lost its zero
    k.Press(CommandsKelvra::Zero);
    EXPECT_EQ(zeroed(), "Not zeroed in this run");
}

TEST(SensorCommands, TheLogHasTheirCallsInOrder) {
    const std::string spaces(256, ' ');
    const struct {
        CommandsKelvra::Button button;
        std::string lines;
    } cases[] = {
        {CommandsKelvra::Zero,
         "psdrv_chan_zero( 12, 2 ) STARTING\r\npsdrv_chan_zero( 12, 2 ) FINISHED\r\n"
         "psdrv_chan_isZeroComplete 12, 2, 0 ) STARTING\r\n"
         "psdrv_chan_isZeroComplete 12, 2, 1 ) FINISHED\r\n"
         "psdrv_close( 12 ) STARTING\r\npsdrv_close( 12 ) FINISHED\r\n"},
        {CommandsKelvra::SelfTest,
         "psdrv_chan_selfTest( 12, 2, " + spaces +
             " ) STARTING\r\n"
             "psdrv_chan_selfTest( 12, 2, bad value ) FINISHED\r\n"
             "psdrv_close( 12 ) STARTING\r\npsdrv_close( 12 ) FINISHED\r\n"},
        {CommandsKelvra::Information,
         "psdrv_chan_infosCount( 12, 2 ) STARTING\r\npsdrv_chan_infosCount -> FINISHED\r\n"
         "psdrv_chan_infoHeader( 12, 2, 0, 256 ) STARTING\r\n"
         "psdrv_chan_infoHeader -> FINISHED\r\n"
         "psdrv_close( 12 ) STARTING\r\npsdrv_close -> FINISHED\r\n"},
    };
    CommandsKelvra k(1);
    k.driver.complete = nullptr;
    k.driver.averagingCount = 1;
    k.program->log.path = k.folder.Path("log");
    k.program->log.timeStamps = false;
    k.program->log.enabled = true;
    for (const auto& c : cases) {
        k.program->log.RemoveOld();
        k.Press(c.button);
        const std::string log = k.folder.Get("log");
        const std::string opened = "psdrv_AddSensor FINISHED\r\n";
        EXPECT_EQ(log.substr(log.find(opened) + opened.size()), c.lines);
    }
}

TEST(SensorCommands, WhatIsSavedIsTheInformationThatWasShownWhenTheFileWasAskedFor) {
    CommandsKelvra k(1);
    auto& form = k.program->forms.sensInfoForm;
    k.Press(CommandsKelvra::Information);
    using Items = std::vector<controls::List::Item>;
    EXPECT_EQ(form.InfoValue.Items(), (Items{{"PS-101", 0}, {"", 0}, {" -60:20", 0}}));
    platform::Dialogs::FileAnswer answer;
    k.fake.dialogs.onFileQuestion = [&](auto given) { answer = std::move(given); };
    form.cmdInfoSave.Press();
    k.driver.averagingCount = 0;
    k.Press(CommandsKelvra::Information);
    EXPECT_FALSE(form.cmdInfoSave.enabled);
    answer(platform::ChosenFile{k.folder.Path("info.txt")});
    EXPECT_EQ(k.folder.Get("info.txt"), "Type: PS-101\r\nMade: \r\nLimits: -60:20\r\n");
    EXPECT_EQ(k.Notice(), "Information of sensor 2 (B) saved to info.txt");
    answer(platform::ChosenFile{k.folder.Path("no folder/info.txt")});
    EXPECT_TRUE(k.Messages().starts_with("The file could not be saved.\r\n"));
}

}  // namespace kelvra::measure
