// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/enable_states.h"

#include <gtest/gtest.h>

#include "sensors/settings_fields.h"

namespace kelvra::ui {
namespace {

using driver::Capabilities;

Situation AtStart() {
    Situation situation;
    situation.settings = sensors::DefaultSettings();
    return situation;
}

TEST(EnableStates, ButtonsGoByWhatIsRunning) {
    // clang-format off
    const struct {
        Activity activity;
        bool simulation;
        bool start, stop, commands;
    } cases[] = {
        // activity          simulation  start  stop   commands
        {Activity::Idle,      false,      true,  false, true},
        {Activity::Opening,   false,      false, true,  true},
        {Activity::Measuring, false,      false, true,  false},
        {Activity::Held,      false,      false, true,  true},
        {Activity::Command,   false,      false, false, false},
        {Activity::Zeroing,   false,      false, true,  false},
        {Activity::Idle,      true,       true,  false, false},
        {Activity::Held,      true,       false, true,  false},
    };
    // clang-format on
    for (const auto& c : cases) {
        Situation situation = AtStart();
        situation.activity = c.activity;
        situation.simulation = c.simulation;
        const EnableStates states = FindEnableStates(situation);
        const auto what = static_cast<int>(c.activity);
        EXPECT_EQ(states.start, c.start) << what << c.simulation;
        EXPECT_EQ(states.stop, c.stop) << what << c.simulation;
        EXPECT_EQ(states.commands, c.commands) << what << c.simulation;
    }
}

TEST(EnableStates, FieldsGoByModeAndModel) {
    // clang-format off
    const struct {
        Capabilities model;
        std::int32_t mode;
        bool averagingSlot, dutyCycle;
    } cases[] = {
        // model                      mode                        slot   duty
        {Capabilities::TimeResolving, sensors::ContinuousAverage, false, true},
        {Capabilities::TimeResolving, sensors::BufferedAverage,   false, false},
        {Capabilities::TimeResolving, sensors::TimeSlot,          true,  false},
        {Capabilities::TimeResolving, sensors::Burst,             false, false},
        {Capabilities::TimeResolving, sensors::Trace,             false, false},
        {Capabilities::AverageOnly,   sensors::ContinuousAverage, false, true},
        {Capabilities::AverageOnly,   sensors::TimeSlot,          false, false},
        {Capabilities::Unknown,       sensors::TimeSlot,          true,  false},
    };
    // clang-format on
    for (const auto& c : cases) {
        Situation situation = AtStart();
        situation.model = c.model;
        situation.settings.Mode = c.mode;
        const EnableStates states = FindEnableStates(situation);
        const auto model = static_cast<int>(c.model);
        EXPECT_EQ(states.averagingSlot, c.averagingSlot) << model << c.mode;
        EXPECT_EQ(states.dutyCycle, c.dutyCycle) << model << c.mode;
    }
}

TEST(EnableStates, SwitchesAndTriggerSourceRuleOverTheirOwnFields) {
    Situation situation = AtStart();
    situation.settings.Mode = sensors::TimeSlot;
    EnableStates expected = FindEnableStates(situation);
    EXPECT_TRUE(expected.averaging && expected.averagingSlot && expected.traceAveraging);
    situation.settings.AvgEnable = false;
    expected.averaging = expected.averagingSlot = false;
    EXPECT_EQ(FindEnableStates(situation), expected);
    situation.settings.ScopeAVGEnable = false;
    expected.traceAveraging = false;
    EXPECT_EQ(FindEnableStates(situation), expected);
    for (std::int16_t source = 0; source < 5; ++source) {
        situation.settings.TrigSource = source;
        expected.triggerLevel = source != 1;
        EXPECT_EQ(FindEnableStates(situation), expected) << source;
    }
}

TEST(EnableStates, WriterReachesExactlyTheControlsOfAState) {
    forms::Forms forms;
    forms::SetupForm& dialog = forms.setupForm;
    const struct {
        bool EnableStates::*state;
        std::vector<const controls::Control*> controls;
    } cases[] = {
        {&EnableStates::start, {&forms.mdiMain.StartIt}},
        {&EnableStates::stop, {&forms.mdiMain.StopIt}},
        {&EnableStates::commands, {&dialog.ActionFrame}},
        {&EnableStates::averaging,
         {&dialog.MovingAveraging, &dialog.SensAvgMode, &dialog.SensAvgMode.At(2),
          &dialog.SensAvgCount}},
        {&EnableStates::averagingSlot, {&dialog.SensAvgSlot}},
        {&EnableStates::traceAveraging,
         {&dialog.ScopeMovingAveraging, &dialog.ScopeAvgMode.At(1), &dialog.ScopeAvgCount}},
        {&EnableStates::dutyCycle, {&dialog.CorrDutyEnable, &dialog.CorrDutyValue}},
        {&EnableStates::triggerPage, {&dialog.TriggerFrame}},
        {&EnableStates::advancedPage, {&dialog.AdvancedFrame}},
        {&EnableStates::triggerLevel, {&dialog.SensTriggerLevel}},
    };
    for (const auto& enabled : cases) {
        EnableStates states;
        states.*enabled.state = true;
        ApplyEnableStates(forms, states);
        for (const auto& other : cases)
            for (const controls::Control* control : other.controls)
                EXPECT_EQ(control->enabled, &other == &enabled) << control->Name();
        const bool commands = states.commands;
        EXPECT_EQ(dialog.SensInfo.picture.Get(), commands ? "sensInfoPic" : "sensInfoDisPic");
        EXPECT_EQ(dialog.cmdZeroAll.picture.Get(),
                  commands ? "zeroSensAllPic" : "zeroSensAllDisPic");
    }
    EXPECT_TRUE(dialog.SensAVGState.enabled && dialog.ScopeAVGState.enabled);
}

}  // namespace
}  // namespace kelvra::ui
