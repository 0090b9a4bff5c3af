// SPDX-License-Identifier: GPL-3.0-or-later
// Puts the scalar readings of all sensors into the trend, also while nobody looks at it. A reading
// has the time at which its pass was over. Only good readings count: a failed fetch, a pass without
// a reading, and the time between two measurements leave a gap.
#pragma once

#include <vector>

#include "measure/listener.h"
#include "measure/trend_store.h"
#include "sensors/sensor_table.h"

namespace kelvra::measure {

class TrendCollector final : public MeasurementListener, public PassListener, public SlotListener {
public:
    TrendCollector(TrendStore& store, const sensors::SensorTable& table, platform::Clock& clock)
        : store_(store), table_(table), clock_(clock) {}

    void Started() override;
    void Stopped() override;
    void ReadingArrived(int slot) override;
    void PassSeen(platform::Duration now, platform::Duration lasted) override;

private:
    struct Slot {
        TrendSeries* series = nullptr;  // from the first reading of the measurement on
        double power = 0;               // W
        bool arrived = false;           // and is not in the trend yet
    };

    void Take(platform::Duration now);
    void LetGo();

    TrendStore& store_;
    const sensors::SensorTable& table_;
    platform::Clock& clock_;
    std::vector<Slot> slots_;
};

}  // namespace kelvra::measure
