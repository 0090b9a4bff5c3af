// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/cycle.h"

#include "driver/call_log.h"
#include "measure/notice.h"
#include "util/number_text.h"

namespace kelvra::measure {

using std::chrono::milliseconds;

namespace {

// How long a sensor may take before the notice says that it is waited for, and again.
constexpr auto WaitingNoticeAfter = milliseconds(1000);
// A round in which nothing completed waits for an event instead of spinning.
constexpr auto PollingPatience = milliseconds(1);
constexpr std::int16_t LongestBar = 8;

}  // namespace

bool Cycle::Takes(int slot) const {
    const auto index = static_cast<std::size_t>(slot);
    return index < measured_.size() && measured_[index] && p_.table[slot].present;
}

void Cycle::Pass() {
    pacing_.PassBegins();
    for (int slot = 0; slot < p_.table.Slots(); ++slot) {
        if (!Takes(slot)) continue;
        const bool prepared = PrepareSlot(slot);
        if (!prepared || p_.state.Ending()) return;
    }
    for (int slot = 0; slot < p_.table.Slots(); ++slot) p_.table[slot].triggerNowRequest = false;
    const platform::Duration began = p_.host.clock.Monotonic();
    speed_.Restart(began);
    Initiate();
    p_.forms.mdiMain.FileSaveData.enabled = true;
    Poll(began);
    if (p_.state.Ending()) return;
    speed_.UpdateSpeedAndBusy();
    Fetch();
    p_.calcGrid.Compute();
    p_.host.events.DoEvents();
    if (p_.state.exiting) return;
    if (!p_.session.state.errorShown) HideNotice(p_.forms.mdiMain);
    pacing_.WaitForDeadline();
    if (p_.state.exiting) return;
    // What was shown while waiting is over; an error stays to be read.
    if (!p_.session.state.errorShown) p_.forms.mdiMain.lblMeasAwait.caption = " ";
    ++p_.state.passes;
}

// A slot that was closed since the last pass is opened again; changed settings are sent. A failed
// opening has closed the session of all: then the pass starts over.
bool Cycle::PrepareSlot(int slot) {
    if (!p_.table[slot].sessionOpen) {
        p_.session.OpenSensor(slot);
        if (p_.state.exiting) return false;
        if (!p_.table[slot].sessionOpen) {
            ShowSwitch(slot);
            TakeOut(slot);
            return false;
        }
        sensors::PrepareWorkArrays(p_.table, slot);
        Configure(slot);
        if (p_.state.exiting) return false;
    }
    if (p_.table[slot].settingsChanged) {
        Configure(slot);
        if (p_.state.exiting) return false;
        if (!p_.table.simulationMode) sensors::PrepareWorkArrays(p_.table, slot);
    }
    sensors::SensorEntry& entry = p_.table[slot];
    entry.measPending = 1;
    ++entry.waitTicks;
    p_.results.ShowActivity(slot, true);
    return true;
}

// What can't be opened again isn't tried in every pass, with a message each time. Without slot 0
// there is no session for the others.
void Cycle::TakeOut(int slot) {
    measured_[static_cast<std::size_t>(slot)] = false;
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
    driver::FramedCall(p_.session.log, driver::log_form::Initiating,
                       p_.session.operations.psdrv_chans_initiate,
                       p_.session.state.instrumentHandle);
}

// One reading of the clock serves a round, and the first round has that of the pass.
void Cycle::Poll(platform::Duration began) {
    lastNotice_ = began;
    bool allDone = false;
    for (platform::Duration now = began; !allDone && !p_.state.Ending();) {
        allDone = true;
        bool progress = false;
        for (int slot = 0; slot < p_.table.Slots(); ++slot) {
            const sensors::SensorEntry& entry = p_.table[slot];
            if (!entry.sessionOpen || entry.measPending != 1 || entry.settingsChanged) continue;
            const bool complete = PollSlot(slot, now);
            progress = progress || complete;
            allDone = allDone && complete;
        }
        p_.host.events.DoEvents(progress || allDone ? milliseconds(0) : PollingPatience);
        if (!allDone) now = p_.host.clock.Monotonic();
    }
}

bool Cycle::PollSlot(int slot, platform::Duration now) {
    if (!p_.table.simulationMode && !AskWhetherComplete(slot, now)) return false;
    sensors::SensorEntry& entry = p_.table[slot];
    entry.measPending = 0;
    p_.results.ShowActivity(slot, false);
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
    ShowWaiting(slot, result, now);
    return complete != 0;
}

void Cycle::ShowWaiting(int slot, const driver::CallResult& result, platform::Duration now) {
    if (now - lastNotice_ <= WaitingNoticeAfter || p_.session.state.errorShown) return;
    std::string text = "Waiting for a trigger signal at sensor " +
                       util::TrimmedNumberText(std::int64_t{driver::ChannelOf(slot)});
    if (result.Failed()) text += ": " + p_.session.MessageFor(result);
    ShowNotice(p_.forms.mdiMain, std::move(text));
    lastNotice_ = now;
}

void Cycle::Fetch() {
    for (int slot = 0; slot < p_.table.Slots(); ++slot)
        if (Takes(slot) && p_.table[slot].sessionOpen && !p_.table[slot].settingsChanged)
            FetchSlot(slot);
}

void Cycle::FetchSlot(int slot) {
    switch (p_.table[slot].settings.Mode) {
        case sensors::ContinuousAverage:
        case sensors::Burst:
            p_.results.SetTableMark(slot, true);
            p_.readings.GetSingleReading(slot);
            break;
        case sensors::TimeSlot:
            p_.results.SetTableMark(slot, false);
            p_.readings.GetMultiReading(slot);
            p_.table[slot].newSlotData = true;
            break;
        case sensors::Trace:
            p_.results.SetTableMark(slot, false);
            p_.readings.GetMultiReading(slot);
            p_.table[slot].newTraceData = true;
            break;
        default:  // a buffered result is not fetched in the pass
            break;
    }
}

// Every measurement opens and closes its own session; a simulated one has none.
void Cycle::Close() {
    if (!p_.state.exiting && !p_.table.simulationMode) p_.session.Close();
}

}  // namespace kelvra::measure
