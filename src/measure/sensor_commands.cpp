// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/sensor_commands.h"

#include <algorithm>
#include <string>
#include <utility>

#include "driver/call_log.h"
#include "driver/text_buffer.h"
#include "util/number_text.h"
#include "util/text.h"

namespace kelvra::measure {

using std::chrono::milliseconds;
namespace log_form = driver::log_form;

namespace {

constexpr auto PollInterval = milliseconds(50);
// More entries than any sensor has; keeps a wrong count from going on for hours.
constexpr std::int32_t MostEntries = 1000;

// Tells that the sensor is being worked on, and in any case when that is over.
class SensorScope {
public:
    SensorScope(const News& news, const CommandEnd& so) : news_(news), slot_(so.slot) {
        news_.command.Tell(&CommandListener::SensorBegins, so.command, slot_, so.begun, so.sensors);
    }
    ~SensorScope() { news_.command.Tell(&CommandListener::SensorEnds, slot_); }
    SensorScope(const SensorScope&) = delete;
    SensorScope& operator=(const SensorScope&) = delete;

private:
    const News& news_;
    int slot_;
};

std::string LogText(std::int64_t number) {
    return util::TrimmedNumberText(number);
}

}  // namespace

struct SensorCommands::Run {
    Run(MeasureState& state, SensorCommand command, std::vector<int> wanted, std::int64_t theNumber)
        : guard(state), slots(std::move(wanted)), number(theNumber) {
        end.command = command;
        end.sensors = static_cast<int>(slots.size());
    }

    CommandGuard guard;
    std::vector<int> slots;
    std::int64_t number;
    bool waitsForUser = false;
    bool stopRequested = false;
    CommandEnd end;  // what is known so far
};

SensorCommands::SensorCommands(const Parts& parts) : p_(parts), rounds_(parts.host) {}
SensorCommands::~SensorCommands() = default;

std::vector<int> SensorCommands::Current() const {
    const int current = p_.table.currentSensor;
    if (!p_.table[current].present) return {};
    return {current};
}

bool SensorCommands::Begin(SensorCommand command, std::vector<int> slots) {
    if (p_.table.simulationMode || slots.empty()) return false;
    auto run = std::make_unique<Run>(p_.state, command, std::move(slots), ++runs_);
    if (!run->guard) return false;
    run->end.slot = run->slots.front();
    run_ = std::move(run);
    p_.news.command.Tell(&CommandListener::CommandBegins, command);
    return true;
}

void SensorCommands::End(CommandOutcome outcome) {
    const bool information = run_->end.command == SensorCommand::Information;
    p_.session.Close(information ? log_form::Trimmed : log_form::TrimmedAgain);
    CommandEnd end = std::move(run_->end);
    end.outcome = outcome;
    run_.reset();
    p_.news.command.Tell(&CommandListener::CommandEnded, end);
}

bool SensorCommands::Stop() {
    if (!run_) return false;
    if (run_->waitsForUser)
        End(CommandOutcome::Stopped);
    else
        run_->stopRequested = run_->end.command == SensorCommand::Zero;
    return true;
}

CommandOutcome SensorCommands::LetEventsRun() {
    p_.host.events.DoEvents();
    return Interruption();
}

CommandOutcome SensorCommands::Interruption() const {
    if (p_.state.exiting) return CommandOutcome::Exiting;
    return run_->stopRequested ? CommandOutcome::Stopped : CommandOutcome::Done;
}

CommandOutcome SensorCommands::Judge(const driver::CallResult& result) {
    if (!result.Failed()) return CommandOutcome::Done;
    run_->end.message = p_.session.MessageFor(result);
    return CommandOutcome::Failed;
}

// Slot 0 opens the session.
CommandOutcome SensorCommands::Open(int slot) {
    if (const auto outcome = LetEventsRun(); outcome != CommandOutcome::Done) return outcome;
    for (const int opened : {0, slot}) {
        if (p_.table[opened].sessionOpen) continue;
        p_.session.OpenSensor(opened);
        if (p_.state.exiting) return CommandOutcome::Exiting;
        const sensors::SensorEntry& entry = p_.table[opened];
        if (entry.sessionOpen) continue;
        run_->end.slot = opened;
        run_->end.reported = !entry.lastErrorText.empty();
        if (!entry.enabled) p_.news.measurement.Tell(&MeasurementListener::SwitchedOff, opened);
        return CommandOutcome::NotOpened;
    }
    return Interruption();
}

void SensorCommands::ZeroCurrent() {
    if (!Begin(SensorCommand::Zero, Current())) return;
    if (const auto outcome = Open(run_->slots.front()); outcome != CommandOutcome::Done)
        return End(outcome);
    AskForPowerOff();
}

void SensorCommands::ZeroAll() {
    std::vector<int> present;
    for (int slot = 0; slot < p_.table.Slots(); ++slot)
        if (p_.table[slot].present) present.push_back(slot);
    if (Begin(SensorCommand::Zero, std::move(present))) AskForPowerOff();
}

void SensorCommands::AskForPowerOff() {
    run_->waitsForUser = true;
    p_.news.command.Tell(&CommandListener::PowerMustBeOff, [this, number = run_->number] {
        if (!run_ || run_->number != number || !std::exchange(run_->waitsForUser, false)) return;
        ZeroSlots();
    });
}

void SensorCommands::ZeroSlots() {
    auto outcome = Interruption();
    for (const int slot : run_->slots) {
        if (outcome != CommandOutcome::Done) break;
        run_->end.slot = slot;
        outcome = Zero(slot);
    }
    End(outcome);
}

CommandOutcome SensorCommands::Zero(int slot) {
    if (!p_.table[slot].sessionOpen)
        if (const auto outcome = Open(slot); outcome != CommandOutcome::Done) return outcome;
    ++run_->end.begun;
    {
        const SensorScope scope(p_.news, run_->end);
        p_.table.NoteZeroed(p_.table[slot], std::nullopt);
        if (const auto outcome = WaitForZero(slot); outcome != CommandOutcome::Done) return outcome;
        p_.table.NoteZeroed(p_.table[slot], p_.host.clock.Now());
        ++run_->end.done;
    }
    p_.session.Close(log_form::TrimmedAgain);
    return CommandOutcome::Done;
}

CommandOutcome SensorCommands::WaitForZero(int slot) {
    const auto started = Judge(driver::FramedCall(
        p_.session.log, log_form::TrimmedAgain, p_.session.operations.psdrv_chan_zero,
        p_.session.state.instrumentHandle, driver::ChannelOf(slot)));
    if (started != CommandOutcome::Done) return started;
    const platform::Duration began = p_.host.clock.Monotonic();
    while (true) {
        driver::Switch complete = 0;
        const auto answer = Judge(AskWhetherZeroed(slot, complete));
        if (answer != CommandOutcome::Done || complete != 0) return answer;
        if (p_.host.clock.Monotonic() - began >= LongestZero) return CommandOutcome::TimedOut;
        if (const auto outcome = Pause(); outcome != CommandOutcome::Done) return outcome;
    }
}

driver::CallResult SensorCommands::AskWhetherZeroed(int slot, driver::Switch& complete) {
    const auto& poll = p_.session.operations.psdrv_chan_isZeroComplete;
    const driver::Handle handle = p_.session.state.instrumentHandle;
    const driver::CallFrame frame(p_.session.log, log_form::ZeroPolling, poll, LogText(handle),
                                  LogText(driver::ChannelOf(slot)), LogText(complete));
    const driver::CallResult result = poll(handle, driver::ChannelOf(slot), &complete);
    frame.Finish(LogText(complete));
    return result;
}

CommandOutcome SensorCommands::Pause() {
    platform::Clock& clock = p_.host.clock;
    const platform::Duration until = clock.Monotonic() + PollInterval;
    auto outcome = CommandOutcome::Done;
    for (auto left = platform::Duration(PollInterval);
         outcome == CommandOutcome::Done && left > platform::Duration::zero();
         left = until - clock.Monotonic()) {
        p_.host.events.DoEvents(std::chrono::ceil<milliseconds>(left));
        outcome = Interruption();
    }
    return outcome;
}

void SensorCommands::TestCurrent() {
    if (Begin(SensorCommand::SelfTest, Current())) End(Test(run_->slots.front()));
}

CommandOutcome SensorCommands::Test(int slot) {
    if (const auto outcome = Open(slot); outcome != CommandOutcome::Done) return outcome;
    if (const auto outcome = LetEventsRun(); outcome != CommandOutcome::Done) return outcome;
    ++run_->end.begun;
    const SensorScope scope(p_.news, run_->end);
    const auto& test = p_.session.operations.psdrv_chan_selfTest;
    const driver::Handle handle = p_.session.state.instrumentHandle;
    driver::TextBuffer report;
    const driver::CallFrame frame(p_.session.log, log_form::SelfTesting, test, LogText(handle),
                                  LogText(driver::ChannelOf(slot)), report.Data());
    const driver::CallResult result = test(handle, driver::ChannelOf(slot), report.Data());
    run_->end.report = report.Text();
    frame.Finish(run_->end.report);
    return Judge(result);
}

void SensorCommands::ReadCurrent() {
    if (Begin(SensorCommand::Information, Current())) End(ReadEntries(run_->slots.front()));
}

CommandOutcome SensorCommands::ReadEntries(int slot) {
    if (const auto outcome = Open(slot); outcome != CommandOutcome::Done) return outcome;
    const auto& countEntries = p_.session.operations.psdrv_chan_infosCount;
    const driver::Handle handle = p_.session.state.instrumentHandle;
    std::int32_t count = 0;
    const driver::CallFrame frame(p_.session.log, log_form::Trimmed, countEntries, handle,
                                  driver::ChannelOf(slot));
    const driver::CallResult result = countEntries(handle, driver::ChannelOf(slot), &count);
    frame.Finish();
    auto outcome = Judge(result);
    rounds_.Restart(p_.host.clock.Monotonic());
    for (std::int32_t entry = 0; entry < std::min(count, MostEntries); ++entry) {
        if (outcome != CommandOutcome::Done) break;
        outcome = ReadEntry(slot, entry);
    }
    return outcome;
}

CommandOutcome SensorCommands::ReadEntry(int slot, std::int32_t entry) {
    const auto& read = p_.session.operations.psdrv_chan_infoHeader;
    const driver::Handle handle = p_.session.state.instrumentHandle;
    driver::TextBuffer text;
    const driver::CallFrame frame(p_.session.log, log_form::Trimmed, read, handle,
                                  driver::ChannelOf(slot), entry, driver::TextBuffer::Length);
    const driver::CallResult result =
        read(handle, driver::ChannelOf(slot), entry, driver::TextBuffer::Length, text.Data());
    frame.Finish();
    if (const auto outcome = Judge(result); outcome != CommandOutcome::Done) return outcome;
    const std::string line = text.Text();
    const util::SplitText split = util::SplitAtFirst(line, ':');
    run_->end.entries.push_back({std::string(split.before), std::string(split.after)});
    rounds_.AfterCall(CallKind::Setting);
    return Interruption();
}

}  // namespace kelvra::measure
