// SPDX-License-Identifier: GPL-3.0-or-later
// The power of each time slot, computed from a trace.
#pragma once

#include <span>
#include <vector>

#include "sensors/sensor_settings.h"

namespace kelvra::measure {

// In dBm, one for each of the settings' time slots: the mean of the magnitudes (W) of the points
// that lie between the exclusions of the slot. Slot 0 begins at the trace's first point. A slot
// without a point has -970 dBm. Points that are not finite do not count.
std::vector<double> SlotPowers(std::span<const double> traceW,
                               const sensors::SensorSettings& settings);

}  // namespace kelvra::measure
