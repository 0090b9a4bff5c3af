// SPDX-License-Identifier: GPL-3.0-or-later
// The statistics of a sensor's time slots: a ring of the last readings for each slot.
#pragma once

#include "sensors/sensor_entry.h"

namespace kelvra::sensors {

// Takes the entry's results (W), one for each slot, into the statistics. Begins them anew if their
// number is not that of the time slots. A slot without a result keeps its readings.
void AddSlotReadings(SensorEntry& entry);

}  // namespace kelvra::sensors
