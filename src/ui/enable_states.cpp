// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/enable_states.h"

#include <initializer_list>

namespace kelvra::ui {

namespace {

void Enable(std::initializer_list<controls::Control*> controls, bool enabled) {
    for (controls::Control* control : controls) control->enabled = enabled;
}

// The group and each of its options.
void Enable(controls::OptionGroup& group, bool enabled) {
    group.enabled = enabled;
    for (int option = 0; option < group.Count(); ++option) group.At(option).enabled = enabled;
}

void EnableCommands(forms::SetupForm& dialog, bool enabled) {
    const struct {
        controls::Button& button;
        const char* picture;
        const char* disabledPicture;
    } commands[] = {
        {dialog.SensorZero, "zeroSensPic", "zeroSensDisPic"},
        {dialog.cmdZeroAll, "zeroSensAllPic", "zeroSensAllDisPic"},
        {dialog.SensSelfTest, "selfTestPic", "selfTestDisPic"},
        {dialog.SensInfo, "sensInfoPic", "sensInfoDisPic"},
    };
    dialog.ActionFrame.enabled = enabled;
    for (const auto& command : commands)
        command.button.picture = enabled ? command.picture : command.disabledPicture;
}

void EnablePage(controls::Frame& page, bool enabled) {
    page.enabled = enabled;
    page.tooltip = enabled ? "" : "This model does not take these settings";
}

}  // namespace

EnableStates FindEnableStates(const Situation& situation) {
    const Activity activity = situation.activity;
    const sensors::SensorSettings& settings = situation.settings;
    const bool averageOnly = situation.model == driver::Capabilities::AverageOnly;
    const bool started = activity == Activity::Opening || activity == Activity::Measuring ||
                         activity == Activity::Held;
    const bool command = activity == Activity::Command || activity == Activity::Zeroing;
    const bool busy = activity == Activity::Measuring || command;
    return {
        .start = activity == Activity::Idle,
        .stop = started || activity == Activity::Zeroing,
        .commands = !busy && !situation.simulation,
        .averaging = settings.AvgEnable,
        .averagingSlot = settings.AvgEnable && settings.Mode == sensors::TimeSlot && !averageOnly,
        .traceAveraging = settings.ScopeAVGEnable,
        .dutyCycle = settings.Mode == sensors::ContinuousAverage,
        .triggerPage = situation.takesTrigger,
        .advancedPage = situation.takesAdvanced,
        .triggerLevel = situation.takesTrigger && settings.TrigSource != sensors::ExternalTrigger,
    };
}

void ApplyEnableStates(forms::Forms& forms, const EnableStates& states) {
    forms::SetupForm& dialog = forms.setupForm;
    // Enables first and then disables: the focus moves from a disabled control to an enabled one.
    forms::MDIMain& main = forms.mdiMain;
    if (states.stop) main.StopIt.enabled = true;
    main.StartIt.enabled = states.start;
    main.StopIt.enabled = states.stop;
    EnableCommands(dialog, states.commands);

    Enable({&dialog.MovingAveraging, &dialog.SensAvgResValue, &dialog.SensAvgSNRValue,
            &dialog.SensAvgMaxTime, &dialog.SensAvgCount},
           states.averaging);
    Enable(dialog.SensAvgMode, states.averaging);
    dialog.SensAvgSlot.enabled = states.averagingSlot;
    Enable({&dialog.ScopeMovingAveraging, &dialog.ScopeAvgResValue, &dialog.ScopeAvgSNRValue,
            &dialog.ScopeAvgMaxTime, &dialog.ScopeAvgCount},
           states.traceAveraging);
    Enable(dialog.ScopeAvgMode, states.traceAveraging);
    Enable({&dialog.CorrDutyEnable, &dialog.CorrDutyValue}, states.dutyCycle);
    EnablePage(dialog.TriggerFrame, states.triggerPage);
    EnablePage(dialog.AdvancedFrame, states.advancedPage);
    dialog.SensTriggerLevel.enabled = states.triggerLevel;
    dialog.SensTriggerLevel.back = states.triggerLevel ? controls::Cyan : controls::Grey;
}

}  // namespace kelvra::ui
