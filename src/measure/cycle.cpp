// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/cycle.h"

#include "driver/call_log.h"
#include "sensors/slot_statistics.h"

namespace kelvra::measure {

using std::chrono::milliseconds;

namespace {

// A sensor that is not complete is reported after this time, and then each time it has passed.
constexpr auto AwaitedAfter = milliseconds(1000);
// If nothing completed, a round waits this long for an event, so that it does not spin.
constexpr auto PollingPatience = milliseconds(1);
// A simulated pass waits this long for an event: passes faster than anybody can see would only use
// up the processor.
constexpr auto SimulatedPass = milliseconds(20);
constexpr std::int16_t LongestBar = 8;

}  // namespace

bool Cycle::Takes(int slot) const {
    const auto index = static_cast<std::size_t>(slot);
    return index < run_.measured.size() && run_.measured[index] && p_.table[slot].present;
}

void Cycle::Pass() {
    const platform::Duration passBegan =
        run_.lastPassEnded ? *run_.lastPassEnded : p_.host.clock.Monotonic();
    pacing_.PassBegins(passBegan);
    rounds_.Restart(passBegan);
    for (int slot = 0; slot < p_.table.Slots(); ++slot) {
        if (!Takes(slot)) continue;
        const bool prepared = PrepareSlot(slot);
        if (!prepared || p_.state.Ending()) return;
    }
    if (p_.state.Ending()) return;
    for (int slot = 0; slot < p_.table.Slots(); ++slot) p_.table[slot].triggerNowRequest = false;
    const auto& listeners = p_.news.pass;
    Initiate();
    listeners.Tell(&PassListener::PassStarted);
    Poll(passBegan);
    if (p_.state.Ending()) return;
    Fetch();
    if (p_.state.Ending()) return;
    listeners.Tell(&PassListener::PassMeasured);
    p_.host.events.DoEvents(p_.table.simulationMode ? SimulatedPass : milliseconds(0));
    if (p_.state.exiting) return;
    const platform::Duration now = p_.host.clock.Monotonic();
    listeners.Tell(&PassListener::PassSeen, now, now - passBegan);
    run_.lastPassEnded.reset();
    if (p_.state.recordInterval == 0) run_.lastPassEnded = now;
    pacing_.WaitForDeadline();
    if (p_.state.exiting) return;
    listeners.Tell(&PassListener::PassEnded);
    ++p_.state.passes;
}

// Opens a slot again that was closed since the last pass, and sends changed settings. A failed
// opening has closed the whole session; then the pass starts over.
bool Cycle::PrepareSlot(int slot) {
    if (!p_.table[slot].sessionOpen) {
        p_.session.OpenSensor(slot);
        if (p_.state.exiting) return false;
        if (!p_.table[slot].sessionOpen) {
            TellSwitchedOff(slot);
            TakeOut(slot);
            return false;
        }
        sensors::PrepareWorkArrays(p_.table, slot);
        Configure(slot);
        if (p_.state.Ending()) return false;
    }
    if (p_.table[slot].settingsChanged) {
        Configure(slot);
        if (p_.state.Ending()) return false;
        if (!p_.table.simulationMode) sensors::PrepareWorkArrays(p_.table, slot);
    }
    sensors::SensorEntry& entry = p_.table[slot];
    entry.measPending = 1;
    ++entry.waitTicks;
    p_.news.slot.Tell(&SlotListener::SlotStarted, slot);
    return true;
}

// A sensor that can't be opened again is not tried in every pass, with a message each time. Without
// slot 0 there is no session for the others.
void Cycle::TakeOut(int slot) {
    run_.measured[static_cast<std::size_t>(slot)] = false;
    if (slot == 0) Stop();
}

void Cycle::Configure(int slot) {
    if (p_.table.simulationMode)
        p_.table[slot].settingsChanged = false;
    else
        p_.transfer.ConfigureSensor(slot);
}

void Cycle::Initiate() {
    if (p_.table.simulationMode) return;
    p_.session.ReportInitiate(driver::FramedCall(p_.session.log, driver::log_form::Initiating,
                                                 p_.session.operations.psdrv_chans_initiate,
                                                 p_.session.state.instrumentHandle));
}

// The clock is not read for the first round, after which most sensors are complete: a sensor counts
// as waited for from the second round on.
void Cycle::Poll(platform::Duration passBegan) {
    run_.lastAwaited = passBegan;
    if (PollRound(passBegan)) return;
    run_.lastAwaited = p_.host.clock.Monotonic();
    for (platform::Duration now = run_.lastAwaited; !PollRound(now);)
        now = p_.host.clock.Monotonic();
}

// Asks each sensor that has not completed, and lets events run. True if no further round follows.
bool Cycle::PollRound(platform::Duration now) {
    rounds_.Restart(now);
    bool allDone = true;
    bool progress = false;
    for (int slot = 0; slot < p_.table.Slots() && !p_.state.Ending(); ++slot) {
        const sensors::SensorEntry& entry = p_.table[slot];
        if (!entry.sessionOpen || entry.measPending != 1 || entry.settingsChanged) continue;
        const bool complete = PollSlot(slot, now);
        progress = progress || complete;
        allDone = allDone && complete;
        rounds_.AfterCall(CallKind::Polling);
    }
    p_.host.events.DoEvents(progress || allDone ? milliseconds(0) : PollingPatience);
    return allDone || p_.state.Ending();
}

bool Cycle::PollSlot(int slot, platform::Duration now) {
    if (!p_.table.simulationMode && !AskWhetherComplete(slot, now)) return false;
    sensors::SensorEntry& entry = p_.table[slot];
    entry.measPending = 0;
    p_.news.slot.Tell(&SlotListener::SlotComplete, slot);
    if (entry.waitTicks >= LongestBar) entry.waitTicks = 0;
    return true;
}

bool Cycle::AskWhetherComplete(int slot, platform::Duration now) {
    driver::InstrumentOperations& op = p_.session.operations;
    driver::DebugLog& log = p_.session.log;
    const driver::Handle handle = p_.session.state.instrumentHandle;
    const driver::Channel channel = driver::ChannelOf(slot);
    if (p_.table[slot].triggerNowRequest) {
        driver::FramedCall(log, driver::log_form::General, op.psdrv_meass_sendSoftwareTrigger,
                           handle, channel);
        p_.table[slot].triggerNowRequest = false;
    }
    driver::Switch complete = 0;
    const driver::CallFrame frame(log, driver::log_form::Polling,
                                  op.psdrv_chan_isMeasurementComplete, handle, channel, complete);
    const driver::CallResult result =
        op.psdrv_chan_isMeasurementComplete(handle, channel, &complete);
    frame.Finish(complete);
    if (now - run_.lastAwaited > AwaitedAfter) TellAwaited(slot, result, now);
    return complete != 0;
}

void Cycle::TellAwaited(int slot, const driver::CallResult& result, platform::Duration now) {
    run_.lastAwaited = now;
    const std::string complaint = result.Failed() ? p_.session.MessageFor(result) : std::string();
    p_.news.measurement.Tell(&MeasurementListener::Awaited, slot, complaint);
}

bool Cycle::GoesOn() {
    rounds_.AfterCall(CallKind::Setting);
    return !p_.state.Ending();
}

void Cycle::Fetch() {
    p_.state.fetching = true;
    for (int slot = 0; slot < p_.table.Slots() && !p_.state.Ending(); ++slot) {
        if (!Takes(slot) || !p_.table[slot].sessionOpen || p_.table[slot].settingsChanged) continue;
        FetchSlot(slot);
        rounds_.AfterCall(CallKind::Fetching);
    }
    p_.state.fetching = false;
}

void Cycle::FetchSlot(int slot) {
    sensors::SensorEntry& entry = p_.table[slot];
    switch (entry.settings.Mode) {
        case sensors::ContinuousAverage:
        case sensors::Burst:
            p_.readings.GetSingleReading(slot);
            p_.news.slot.Tell(&SlotListener::ReadingArrived, slot);
            break;
        case sensors::TimeSlot:
            p_.readings.GetMultiReading(slot);
            entry.newSlotData = true;
            sensors::AddSlotReadings(entry);
            p_.news.slot.Tell(&SlotListener::ArrayArrived, slot);
            break;
        case sensors::Trace:
            p_.readings.GetMultiReading(slot);
            entry.newTraceData = true;
            p_.news.slot.Tell(&SlotListener::ArrayArrived, slot);
            break;
        default:  // a buffered result is not fetched during a pass
            break;
    }
}

// Every measurement opens and closes its own session.
void Cycle::Close() {
    if (!p_.state.exiting) p_.session.Close();
}

}  // namespace kelvra::measure
