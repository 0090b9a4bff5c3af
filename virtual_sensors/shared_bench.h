// SPDX-License-Identifier: GPL-3.0-or-later
// How the device list reaches the sensors that the driver works on: a function that the driver
// library exports beside its own, looked up by name in the library of the same folder.
#pragma once

#include "virtual_bench.h"

namespace kelvra::virtual_sensors {

constexpr const char* DriverFileName = "libpsdrv_32.so";
constexpr const char* SharedBenchName = "KelvraSharedBench";

// Owned by the driver library; null when it could not be made.
using SharedBenchFunction = VirtualBench* (*)();

}  // namespace kelvra::virtual_sensors
