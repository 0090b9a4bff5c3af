// SPDX-License-Identifier: GPL-3.0-or-later
// How the device list shares the driver's sensors: the driver library in the same folder exports
// one more function, which gives the bench.
#pragma once

#include "virtual_bench.h"

namespace kelvra::virtual_sensors {

constexpr const char* DriverFileName = "libpsdrv_32.so";
constexpr const char* SharedBenchName = "KelvraSharedBench";

// Owned by the driver library; null when it could not be made.
using SharedBenchFunction = VirtualBench* (*)();

}  // namespace kelvra::virtual_sensors
