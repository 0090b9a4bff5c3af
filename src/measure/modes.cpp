// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/modes.h"

#include <algorithm>

namespace kelvra::measure {

void Modes::Find() {
    state_.timeSlotModeActive = AnyMeasuresIn(sensors::TimeSlot);
    state_.traceModeActive = AnyMeasuresIn(sensors::Trace);
    news_.measurement.Tell(&MeasurementListener::ModesChanged);
}

bool Modes::AnyMeasuresIn(sensors::Mode mode) const {
    return std::any_of(table_.entries.begin(), table_.entries.end(),
                       [&](const auto& entry) { return sensors::MeasuresIn(entry, mode); });
}

}  // namespace kelvra::measure
