// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensors/slot_statistics.h"

#include <algorithm>

namespace kelvra::sensors {

void AddSlotReadings(SensorEntry& entry) {
    const auto slots = static_cast<std::size_t>(std::max<int>(entry.settings.TSlotCount, 1));
    if (entry.slotStats.size() != slots) entry.slotStats.assign(slots, {});
    const std::size_t both = std::min(slots, entry.results.size());
    for (std::size_t slot = 0; slot < both; ++slot) entry.slotStats[slot].Add(entry.results[slot]);
    entry.slotStatsActive = true;
}

}  // namespace kelvra::sensors
