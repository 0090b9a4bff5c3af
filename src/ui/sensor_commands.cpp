// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/sensor_commands.h"

#include "ui/sensor_text.h"
#include "util/number_text.h"
#include "util/text.h"

namespace kelvra::ui {

using measure::CommandEnd;
using measure::CommandOutcome;
using measure::SensorCommand;

namespace {

// What is done to a sensor: "Zeroing sensor 2".
constexpr const char* Doings[] = {"Zeroing ", "Self test of ", "Reading the information of "};

std::string UpperFirst(const std::string& text) {
    return util::UpperCase(text.substr(0, 1)) + text.substr(1);
}

// Of several sensors, how many have been zeroed.
std::string Remainder(const CommandEnd& end) {
    if (end.sensors < 2) return {};
    return "\r\nZeroed: " + util::TrimmedNumberText(end.done) + " of " +
           util::TrimmedNumberText(end.sensors) + " sensors.";
}

std::string FailureText(const CommandEnd& end, const std::string& sensor) {
    const std::string doing = Doings[static_cast<std::size_t>(end.command)] + sensor;
    switch (end.outcome) {
        case CommandOutcome::NotOpened:
            return UpperFirst(sensor) + " could not be opened.";
        case CommandOutcome::Failed:
            return doing + " has failed.\r\n" + end.message;
        case CommandOutcome::TimedOut:
            return doing + " has not ended within " +
                   util::TrimmedNumberText(measure::SensorCommands::LongestZero.count()) +
                   " s. The sensor may be defective, or not answer.";
        case CommandOutcome::Stopped:
            return end.begun == end.done
                       ? "Zeroing has been ended."
                       : doing + " has been ended. The sensor itself may go on for some seconds.";
        case CommandOutcome::Done:
        case CommandOutcome::Exiting:
            break;
    }
    return {};
}

}  // namespace

SensorCommands::SensorCommands(const Parts& parts)
    : p_(parts), infoWindow_(parts.forms, parts.notice, parts.host) {
    forms::SetupForm& dialog = p_.forms.setupForm;
    dialog.SensorZero.click.Connect([this] { p_.commands.ZeroCurrent(); });
    dialog.cmdZeroAll.click.Connect([this] { p_.commands.ZeroAll(); });
    dialog.SensSelfTest.click.Connect([this] { p_.commands.TestCurrent(); });
    dialog.SensInfo.click.Connect([this] { p_.commands.ReadCurrent(); });
}

void SensorCommands::CommandBegins(SensorCommand /*command*/) {
    p_.forms.setupForm.busy = true;
}

void SensorCommands::PowerMustBeOff(const std::function<void()>& goOn) {
    p_.forms.setupForm.busy = false;
    p_.notice.ShowCommand("Zeroing waits until you have disconnected RF power and confirmed it");
    p_.host.dialogs.Confirm({}, "Please disconnect RF power", platform::MessageIcon::Information,
                            goOn);
}

void SensorCommands::SensorBegins(SensorCommand command, int slot, int number, int sensors) {
    std::string text = Doings[static_cast<std::size_t>(command)] + SensorText(p_.table, slot);
    if (sensors > 1)
        text += ", " + util::TrimmedNumberText(number) + " of " + util::TrimmedNumberText(sensors);
    p_.forms.setupForm.busy = true;
    p_.notice.ShowCommand(text);
}

void SensorCommands::CommandEnded(const CommandEnd& end) {
    p_.notice.ShowCommand({});
    p_.forms.setupForm.busy = false;
    if (end.outcome == CommandOutcome::Done)
        ShowResult(end);
    else if (end.outcome != CommandOutcome::Exiting)
        ShowFailure(end);
}

void SensorCommands::ShowResult(const CommandEnd& end) {
    const std::string sensor = SensorText(p_.table, end.slot);
    switch (end.command) {
        case SensorCommand::Zero:
            p_.notice.ShowDone((end.sensors == 1
                                    ? UpperFirst(sensor)
                                    : util::TrimmedNumberText(end.sensors) + " sensors") +
                               " zeroed");
            break;
        case SensorCommand::SelfTest:
            p_.host.dialogs.Message(
                {}, end.report.empty() ? UpperFirst(sensor) + " has given no report." : end.report,
                platform::MessageIcon::Information);
            break;
        case SensorCommand::Information:
            infoWindow_.Show(sensor, end.entries);
            break;
    }
}

// The driver's message about a sensor that could not be opened has been shown before.
void SensorCommands::ShowFailure(const CommandEnd& end) {
    if (end.outcome == CommandOutcome::NotOpened && end.reported) return;
    std::string text = FailureText(end, SensorText(p_.table, end.slot)) + Remainder(end);
    if (!end.report.empty()) text += "\r\n" + end.report;
    p_.host.dialogs.Message({}, text, platform::MessageIcon::Exclamation);
}

}  // namespace kelvra::ui
