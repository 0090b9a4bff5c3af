// SPDX-License-Identifier: GPL-3.0-or-later
// How the device list shares the driver's sensors: the driver library in the same folder exports
// one more function, which returns the bench.
#pragma once

#include "virtual_bench.h"

namespace kelvra::virtual_sensors {

constexpr const char* DriverFileName = "libpsdrv_32.so";
constexpr const char* SharedBenchName = "KelvraSharedBench";

// The driver library owns the bench; null if it could not be created.
using SharedBenchFunction = VirtualBench* (*)();

}  // namespace kelvra::virtual_sensors
