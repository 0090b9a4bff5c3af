// SPDX-License-Identifier: GPL-3.0-or-later
#include "operations.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace kelvra::virtual_sensors {
namespace {

// In the order of the settings.
// clang-format off
constexpr SettingLimits Limits[] = {
    // setting                                      least  most     after a reset
    {Setting::psdrv_avg_setEnabled,                  0,     1,       1},
    {Setting::psdrv_avg_setAutoEnabled,              0,     1,       1},
    {Setting::psdrv_avg_setAutoType,                 0,     1,       0},
    {Setting::psdrv_avg_setAutoResolution,           1,     4,       3},
    {Setting::psdrv_avg_setAutoMaxMeasuringTime,     0,     1000,    4},
    {Setting::psdrv_avg_setAutoNoiseSignalRatio,     1e-4,  10,      0.1},
    {Setting::psdrv_avg_setSlot,                     0,     1024,    1},
    {Setting::psdrv_avg_setCount,                    1,     65536,   4},
    {Setting::psdrv_avg_setTerminalControl,          0,     1,       0},
    {Setting::psdrv_chan_setCorrectionFrequency,     1e3,   1.1e11,  5e7},
    {Setting::psdrv_corr_setOffsetEnabled,           0,     1,       0},
    {Setting::psdrv_corr_setOffset,                  -200,  200,     0},
    {Setting::psdrv_corr_setSParamDeviceEnabled,     0,     1,       0},
    {Setting::psdrv_chan_setSourceGammaCorrEnabled,  0,     1,       0},
    {Setting::psdrv_chan_setSourceGammaMagnitude,    0,     1,       1},
    {Setting::psdrv_chan_setSourceGammaPhase,        -360,  360,     0},
    {Setting::psdrv_corr_setDutyCycleEnabled,        0,     1,       0},
    {Setting::psdrv_corr_setDutyCycle,               1e-3,  100,     1},
    {Setting::psdrv_range_setAutoEnabled,            0,     1,       1},
    {Setting::psdrv_range_setCrossoverLevel,         -60,   60,      0},
    {Setting::psdrv_range_setRange,                  0,     2,       2},
    {Setting::psdrv_chan_setSamplingFrequency,       1,     2,       1},
    {Setting::psdrv_chan_setInitContinuousEnabled,   0,     1,       0},
    {Setting::psdrv_trigger_setSource,               0,     4,       3},
    {Setting::psdrv_trigger_setSlope,                0,     1,       0},
    {Setting::psdrv_trigger_setDelay,                -5,    100,     0},
    {Setting::psdrv_trigger_setCount,                1,     65536,   1},
    {Setting::psdrv_trigger_setLevel,                0,     1000,    1e-6},
    {Setting::psdrv_trigger_setHysteresis,           0,     20,      0},
    {Setting::psdrv_trigger_setHoldoff,              0,     100,     0},
    {Setting::psdrv_chan_mode,                       0,     4,       0},
    {Setting::psdrv_chan_setContAvAperture,          1e-6,  10,      0.02},
    {Setting::psdrv_chan_setContAvSmoothingEnabled,  0,     1,       1},
    {Setting::psdrv_chan_setContAvBufferedEnabled,   0,     1,       0},
    {Setting::psdrv_chan_setContAvBufferSize,        1,     1024,    100},
    {Setting::psdrv_chan_setBurstDropoutTolerance,   0,     1,       1e-4},
    {Setting::psdrv_scope_setAverageEnabled,         0,     1,       1},
    {Setting::psdrv_scope_setAutoEnabled,            0,     1,       1},
    {Setting::psdrv_scope_setAutoType,               0,     1,       0},
    {Setting::psdrv_scope_setAutoResolution,         1,     4,       3},
    {Setting::psdrv_scope_setAutoMaxMeasuringTime,   0,     1000,    4},
    {Setting::psdrv_scope_setAutoNoiseSignalRatio,   1e-4,  10,      0.1},
    {Setting::psdrv_scope_setAverageCount,           1,     65536,   4},
    {Setting::psdrv_scope_setAverageTerminalControl, 0,     1,       0},
    {Setting::psdrv_scope_setPoints,                 1,     1024,    312},
    {Setting::psdrv_scope_setTime,                   1e-6,  10,      0.01},
    {Setting::psdrv_scope_setOffsetTime,             -10,   100,     0},
    {Setting::psdrv_scope_setRealtimeEnabled,        0,     1,       0},
    {Setting::SlotCount,                             1,     1024,    8},
    {Setting::SlotWidth,                             1e-6,  1,       1e-3},
    {Setting::ExcludeStart,                          0,     1,       0},
    {Setting::ExcludeStop,                           0,     1,       0},
};
// clang-format on

constexpr bool EachSettingHasItsRow() {
    if (std::size(Limits) != SettingCount) return false;
    for (std::size_t i = 0; i < SettingCount; ++i) {
        if (static_cast<std::size_t>(Limits[i].setting) != i) return false;
    }
    return true;
}
static_assert(EachSettingHasItsRow(), "a row of Limits is missing or out of order");

constexpr std::array<std::string_view, OperationCount> Names{
#define X(name, ...) #name,
    KELVRA_DRIVER_SETTERS(X) KELVRA_DRIVER_FUNCTIONS(X) KELVRA_DEVICE_LIST_FUNCTIONS(X)
#undef X
};

}  // namespace

const SettingLimits& LimitsOf(Setting setting) {
    return Limits[static_cast<std::size_t>(setting)];
}

std::string_view NameOf(Operation operation) {
    return Names[static_cast<std::size_t>(operation)];
}

std::optional<Operation> FindOperation(std::string_view name) {
    const auto found = std::find(Names.begin(), Names.end(), name);
    if (found == Names.end()) return std::nullopt;
    return static_cast<Operation>(found - Names.begin());
}

}  // namespace kelvra::virtual_sensors
