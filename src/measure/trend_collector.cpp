// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/trend_collector.h"

namespace kelvra::measure {

void TrendCollector::Started() {
    LetGo();
    slots_.assign(static_cast<std::size_t>(table_.Slots()), {});
}

void TrendCollector::Stopped() {
    Take(clock_.Monotonic());
    LetGo();
}

void TrendCollector::LetGo() {
    for (const Slot& slot : slots_) {
        if (slot.series == nullptr) continue;
        slot.series->Break();
        slot.series->active = false;
    }
    slots_.clear();
}

void TrendCollector::ReadingArrived(int slot) {
    const auto index = static_cast<std::size_t>(slot);
    const sensors::SensorEntry& entry = table_[slot];
    if (index >= slots_.size() || !entry.fetchError.empty()) return;
    Slot& own = slots_[index];
    if (own.series == nullptr) {
        own.series = &store_.Of(sensors::KeyOf(entry));
        own.series->active = true;
        own.series->name = entry.logicalName;
    }
    own.power = entry.lastReading;
    own.arrived = true;
}

void TrendCollector::PassSeen(platform::Duration now, platform::Duration /*lasted*/) {
    Take(now);
}

void TrendCollector::Take(platform::Duration now) {
    for (Slot& slot : slots_) {
        if (slot.series == nullptr) continue;
        if (slot.arrived)
            slot.series->Add(now, slot.power);
        else
            slot.series->Break();
        slot.arrived = false;
    }
}

}  // namespace kelvra::measure
