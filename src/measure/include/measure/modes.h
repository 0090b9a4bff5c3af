// SPDX-License-Identifier: GPL-3.0-or-later
// Determines which displays are wanted, from the modes of the sensors that are switched on.
#pragma once

#include "measure/listener.h"
#include "measure/state.h"
#include "sensors/sensor_table.h"

namespace kelvra::measure {

class Modes {
public:
    Modes(const sensors::SensorTable& table, MeasureState& state, const News& news)
        : table_(table), state_(state), news_(news) {}

    // Determines it again and sends ModesChanged even if nothing has changed, since names may have.
    void Find();

private:
    bool AnyMeasuresIn(sensors::Mode mode) const;

    const sensors::SensorTable& table_;
    MeasureState& state_;
    const News& news_;
};

}  // namespace kelvra::measure
