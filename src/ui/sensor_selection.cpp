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
    const auto first = [&](auto wanted) {
        for (int slot = 0; slot < table_.Slots(); ++slot)
            if (table_[slot].present && wanted(table_[slot])) return slot;
        return -1;
    };
    const int same = first(
        [&](const sensors::SensorEntry& entry) { return entry.resourceName == known_.sensor; });
    const int on = first([](const auto& entry) { return entry.enabled; });
    const int any = first([](const auto&) { return true; });
    Select(same >= 0 ? same : on >= 0 ? on : any);
}

void SensorSelection::TellListed() {
    listeners.Tell(&CurrentSensorListener::ListedChanged);
}

void SensorSelection::Tell() {
    const sensors::SensorEntry& entry = table_[table_.currentSensor];
    Known now{table_.currentSensor, entry.resourceName, entry.logicalName};
    if (now == known_) return;
    known_ = std::move(now);
    listeners.Tell(&CurrentSensorListener::CurrentSensorChanged);
}

}  // namespace kelvra::ui
