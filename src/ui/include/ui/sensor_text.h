// SPDX-License-Identifier: GPL-3.0-or-later
// How texts for the user name a sensor.
#pragma once

#include <string>

#include "sensors/sensor_table.h"

namespace kelvra::ui {

// "sensor 2 (Antenna)", "sensor 2" without a name of its own.
std::string SensorText(const sensors::SensorTable& table, int slot);

}  // namespace kelvra::ui
