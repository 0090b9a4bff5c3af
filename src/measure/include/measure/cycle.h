// SPDX-License-Identifier: GPL-3.0-or-later
// The measurement cycle: what runs from Start to Stop. It lets events run at fixed points; Stop,
// the windows and the timers act there and talk to it through flags. It publishes what happens
// (listener.h) and shows nothing. Preparing a measurement is in cycle_start.cpp, the passes are in
// cycle.cpp.
#pragma once

#include <optional>
#include <vector>

#include "driver/session.h"
#include "driver/transfer.h"
#include "measure/event_rounds.h"
#include "measure/listener.h"
#include "measure/modes.h"
#include "measure/pacing.h"
#include "measure/readings.h"
#include "measure/state.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"

namespace kelvra::measure {

// What the cycle works with.
struct CycleParts {
    sensors::SensorTable& table;
    MeasureState& state;
    platform::Host& host;
    driver::Session& session;
    driver::ConfigurationTransfer& transfer;
    Readings& readings;
    Modes& modes;
    const News& news;
};

class Cycle final : public driver::TransferPace {
public:
    explicit Cycle(const CycleParts& parts);

    // Runs the whole measurement and returns after Stop. After a start that failed, it returns at
    // once and the program stays as if measuring until Stop is pressed. Does nothing while it, or a
    // sensor command, is running.
    void Start();

    // Ends the measurement, and a recording, when the cycle next checks. The program counts as idle
    // at once.
    void Stop();

    // Ends a transfer early when the measurement is to end.
    bool GoesOn() override;

private:
    enum class Opened { All, None, Failed, Ended };

    // The data of one measurement.
    struct Run {
        std::vector<bool> measured;  // by slot: present and enabled at Start
        platform::Duration lastAwaited{};
        std::optional<platform::Duration> lastPassEnded;  // unless it waits for a deadline
    };

    // cycle_start.cpp
    void Begin();
    void BringEnabledToFront();
    Opened OpenSensors();
    bool OpenAndConfigure(int slot);
    void TellSwitchedOff(int slot);
    void FailStart(StartFailure why);

    // cycle.cpp
    void Pass();
    bool PrepareSlot(int slot);
    void TakeOut(int slot);
    void Configure(int slot);
    void Initiate();
    void Poll(platform::Duration passBegan);
    bool PollRound(platform::Duration now);
    bool PollSlot(int slot, platform::Duration now);
    bool AskWhetherComplete(int slot, platform::Duration now);
    void TellAwaited(int slot, const driver::CallResult& result, platform::Duration now);
    void Fetch();
    void FetchSlot(int slot);
    void Close();

    // The slot was enabled when the measurement started, and its sensor is still present.
    bool Takes(int slot) const;

    CycleParts p_;
    Pacing pacing_;
    EventRounds rounds_;
    Run run_;
};

}  // namespace kelvra::measure
