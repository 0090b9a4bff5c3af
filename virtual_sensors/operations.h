// SPDX-License-Identifier: GPL-3.0-or-later
// The functions that the two libraries export and the values that can be set: one list each, from
// which the enumerations, the tables of names and limits and the exported functions are made.
// What a function does is said in driver_abi.cpp and device_list_abi.cpp.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

// Values that one function sets: name, type of the argument, smallest, largest, after a reset.
#define KELVRA_VIRTUAL_SETTINGS(X)                           \
    X(avg_setEnabled, uint16_t, 0, 1, 1)                     \
    X(avg_setAutoEnabled, uint16_t, 0, 1, 1)                 \
    X(avg_setAutoType, int32_t, 0, 1, 0)                     \
    X(avg_setAutoResolution, int32_t, 1, 4, 3)               \
    X(avg_setAutoMaxMeasuringTime, double, 0, 1000, 4)       \
    X(avg_setAutoNoiseSignalRatio, double, 1e-4, 10, 0.1)    \
    X(avg_setSlot, int32_t, 0, 1024, 1)                      \
    X(avg_setCount, int32_t, 1, 65536, 4)                    \
    X(avg_setTerminalControl, int32_t, 0, 1, 0)              \
    X(scope_setAverageEnabled, uint16_t, 0, 1, 1)            \
    X(scope_setAutoEnabled, uint16_t, 0, 1, 1)               \
    X(scope_setAutoType, int32_t, 0, 1, 0)                   \
    X(scope_setAutoResolution, int32_t, 1, 4, 3)             \
    X(scope_setAutoMaxMeasuringTime, double, 0, 1000, 4)     \
    X(scope_setAutoNoiseSignalRatio, double, 1e-4, 10, 0.1)  \
    X(scope_setAverageCount, int32_t, 1, 65536, 4)           \
    X(scope_setAverageTerminalControl, int32_t, 0, 1, 0)     \
    X(scope_setPoints, int32_t, 1, 1024, 312)                \
    X(scope_setTime, double, 1e-6, 10, 0.01)                 \
    X(scope_setOffsetTime, double, -10, 100, 0)              \
    X(scope_setRealtimeEnabled, uint16_t, 0, 1, 0)           \
    X(corr_setOffsetEnabled, uint16_t, 0, 1, 0)              \
    X(corr_setOffset, double, -200, 200, 0)                  \
    X(corr_setSParamDeviceEnabled, uint16_t, 0, 1, 0)        \
    X(corr_setDutyCycleEnabled, uint16_t, 0, 1, 0)           \
    X(corr_setDutyCycle, double, 1e-3, 100, 1)               \
    X(chan_setCorrectionFrequency, double, 1e3, 1.1e11, 5e7) \
    X(chan_setSourceGammaCorrEnabled, uint16_t, 0, 1, 0)     \
    X(chan_setSourceGammaMagnitude, double, 0, 1, 1)         \
    X(chan_setSourceGammaPhase, double, -360, 360, 0)        \
    X(range_setAutoEnabled, uint16_t, 0, 1, 1)               \
    X(range_setCrossoverLevel, double, -60, 60, 0)           \
    X(range_setRange, int32_t, 0, 2, 2)                      \
    X(chan_setSamplingFrequency, int32_t, 1, 2, 1)           \
    X(chan_setInitContinuousEnabled, uint16_t, 0, 1, 0)      \
    X(trigger_setSource, int32_t, 0, 4, 3)                   \
    X(trigger_setSlope, int32_t, 0, 1, 0)                    \
    X(trigger_setCount, int32_t, 1, 65536, 1)                \
    X(trigger_setDelay, double, -5, 100, 0)                  \
    X(trigger_setLevel, double, 0, 1000, 1e-6)               \
    X(trigger_setHysteresis, double, 0, 20, 0)               \
    X(trigger_setHoldoff, double, 0, 100, 0)                 \
    X(chan_mode, int32_t, 0, 4, 0)                           \
    X(chan_setContAvAperture, double, 1e-6, 10, 0.02)        \
    X(chan_setContAvSmoothingEnabled, uint16_t, 0, 1, 1)     \
    X(chan_setContAvBufferedEnabled, uint16_t, 0, 1, 0)      \
    X(chan_setContAvBufferSize, int32_t, 1, 1024, 100)       \
    X(chan_setBurstDropoutTolerance, double, 0, 1, 1e-4)

// Values that are set two at a time, in the same form.
#define KELVRA_VIRTUAL_PARTS(X)         \
    X(slotCount, int32_t, 1, 1024, 8)   \
    X(slotWidth, double, 1e-6, 1, 1e-3) \
    X(excludeStart, double, 0, 1, 0)    \
    X(excludeStop, double, 0, 1, 0)

// Everything else that is exported, by its full name.
#define KELVRA_VIRTUAL_ACTIONS(X)         \
    X(psdrv_init)                         \
    X(psdrv_AddSensor)                    \
    X(psdrv_close)                        \
    X(psdrv_error_message)                \
    X(psdrv_error_query)                  \
    X(psdrv_chan_reset)                   \
    X(psdrv_chans_initiate)               \
    X(psdrv_meass_sendSoftwareTrigger)    \
    X(psdrv_chan_isMeasurementComplete)   \
    X(psdrv_meass_fetchMeasurement)       \
    X(psdrv_meass_fetchBufferMeasurement) \
    X(psdrv_avg_getCount)                 \
    X(psdrv_chan_zero)                    \
    X(psdrv_chan_isZeroComplete)          \
    X(psdrv_chan_selfTest)                \
    X(psdrv_chan_infosCount)              \
    X(psdrv_chan_infoHeader)              \
    X(psdrv_tslot_configureTimeSlot)      \
    X(psdrv_timing_configureExclude)      \
    X(TeskLockDeviceList)                 \
    X(TeskGetDeviceListLength)            \
    X(TeskGetDeviceInfo)                  \
    X(TeskCloseDriver)

namespace kelvra::virtual_sensors {

enum class Setting : uint8_t {
#define X(name, type, smallest, largest, reset) name,
    KELVRA_VIRTUAL_SETTINGS(X) KELVRA_VIRTUAL_PARTS(X)
#undef X
        Count
};

enum class Operation : uint8_t {
#define X(name, ...) psdrv_##name,
    KELVRA_VIRTUAL_SETTINGS(X)
#undef X
#define X(name) name,
        KELVRA_VIRTUAL_ACTIONS(X)
#undef X
            Count
};

constexpr std::size_t SettingCount = static_cast<std::size_t>(Setting::Count);
constexpr std::size_t OperationCount = static_cast<std::size_t>(Operation::Count);

struct SettingLimits {
    std::string_view name;
    double smallest;
    double largest;
    double afterReset;
};

const SettingLimits& LimitsOf(Setting setting);

// The name under which the function is exported.
std::string_view NameOf(Operation operation);
std::optional<Operation> FindOperation(std::string_view name);

}  // namespace kelvra::virtual_sensors
