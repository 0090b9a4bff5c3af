// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/sensor_selection.h"

#include <cstdint>
#include <utility>

namespace kelvra::ui {

void SensorSelection::Select(int slot) {
    if (slot < 0 || slot >= table_.Slots() || !table_[slot].present) return;
    table_.currentSensor = static_cast<std::int16_t>(slot);
    Tell();
}

void SensorSelection::Refresh() {
    if (table_[table_.currentSensor].present) return Tell();
    for (int slot = 0; slot < table_.Slots(); ++slot)
        if (table_[slot].present && table_[slot].enabled) return Select(slot);
}

void SensorSelection::Tell() {
    const sensors::SensorEntry& entry = table_[table_.currentSensor];
    Known now{table_.currentSensor, entry.resourceName, entry.logicalName};
    if (now == known_) return;
    known_ = std::move(now);
    listeners.Tell(&CurrentSensorListener::CurrentSensorChanged);
}

}  // namespace kelvra::ui
