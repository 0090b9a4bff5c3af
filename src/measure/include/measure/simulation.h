// SPDX-License-Identifier: GPL-3.0-or-later
// The readings of the two simulated sensors: steady levels with a little noise, and pulsed profiles
// over a noise floor near -60 dBm.
#pragma once

#include <vector>

#include "sensors/sensor_settings.h"
#include "util/random.h"

namespace kelvra::measure {

// A scalar reading in W: between -8.72 and -8.62 dBm at slot 0, -4.05 and -3.999 dBm at the others.
double SimulatedReading(int slot, util::Random& random);

// An array result in W: ScopePoints values in trace mode, TSlotCount in time slot mode, none in
// other modes; never more than `most`.
std::vector<double> SimulatedArray(const sensors::SensorSettings& settings, int most,
                                   util::Random& random);

}  // namespace kelvra::measure
