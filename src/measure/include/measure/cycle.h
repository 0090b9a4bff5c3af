// SPDX-License-Identifier: GPL-3.0-or-later
// The measurement cycle: what the Start button runs until Stop. It keeps the program alive by
// letting events run at fixed points; Stop, the windows and the timers act in those gaps and talk
// to it through flags. Preparing a measurement is in cycle_start.cpp, the passes are in cycle.cpp.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "driver/session.h"
#include "driver/transfer.h"
#include "forms/forms.h"
#include "measure/calc_grid.h"
#include "measure/pacing.h"
#include "measure/readings.h"
#include "measure/result_table.h"
#include "measure/sensor_selection.h"
#include "measure/speed.h"
#include "measure/state.h"
#include "measure/view.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"

namespace kelvra::measure {

// The rooms that the cycle works with.
struct CycleParts {
    forms::Forms& forms;
    sensors::SensorTable& table;
    MeasureState& state;
    platform::Host& host;
    driver::Session& session;
    driver::ConfigurationTransfer& transfer;
    std::function<void(const std::string&)> showDelay;  // of the pacing
    SensorSelection& selection;
    ResultTable& results;
    Readings& readings;
    CalcGrid& calcGrid;
    MeasurementView& view;
};

class Cycle {
public:
    explicit Cycle(const CycleParts& parts);

    // Runs the whole measurement and returns after Stop, or after a start that failed: then the
    // window stays as if measuring until Stop is pressed. Does nothing while it, or a sensor
    // command, runs.
    void Start();

    // Ends the measurement, and a recording, at the cycle's next look; the window is idle at once.
    void Stop();

private:
    enum class Prepared { Ready, Nothing, Failed, Ended };

    // cycle_start.cpp
    void BeginMeasuring();
    void BringEnabledToFront();
    void FindModes();
    Prepared OpenSensors();
    bool OpenAndConfigure(int slot);
    void ShowSwitch(int slot);
    void ShowStartFailure();
    void ShowIdle();
    void LetEventsRunIfLate(platform::Duration& lastRound);

    // cycle.cpp
    void Pass();
    bool PrepareSlot(int slot);
    void TakeOut(int slot);
    void Configure(int slot);
    void Initiate();
    void Poll(platform::Duration began);
    bool PollSlot(int slot, platform::Duration now);
    bool AskWhetherComplete(int slot, platform::Duration now);
    void ShowWaiting(int slot, const driver::CallResult& result, platform::Duration now);
    void Fetch();
    void FetchSlot(int slot);
    void Close();

    // The slot was enabled when the measurement started, and its sensor is still there.
    bool Takes(int slot) const;

    CycleParts p_;
    Speed speed_;
    Pacing pacing_;
    std::vector<bool> measured_;  // by slot, as it was at Start
    platform::Duration lastNotice_{};
};

}  // namespace kelvra::measure
