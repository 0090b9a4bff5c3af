// SPDX-License-Identifier: GPL-3.0-or-later
// The part of the report for support that lists the instrument drivers on this computer.
#pragma once

#include <vector>

#include "platform/host.h"
#include "ui/system_report.h"

namespace kelvra::ui {

// A section for each kind of driver, a line for each file with its version.
std::vector<ReportSection> DriverSections(platform::Host& host);

}  // namespace kelvra::ui
