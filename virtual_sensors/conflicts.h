// SPDX-License-Identifier: GPL-3.0-or-later
// Settings that are good one by one and can't be measured together. They are judged when a
// measurement starts, so the order in which they were set does not matter.
#pragma once

#include "measurement.h"
#include "models.h"
#include "status.h"

namespace kelvra::virtual_sensors {

// The first rule that the settings break, or Ok.
Status FindConflict(const SettingValues& settings, const Model& model);

}  // namespace kelvra::virtual_sensors
