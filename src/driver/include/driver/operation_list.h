// SPDX-License-Identifier: GPL-3.0-or-later
// The one list of the driver libraries' functions. The operations and their names in the log
// (operations.h), the tests' fake driver, the benchmarks' instant sensors, and the exports of the
// virtual sensors are made from it. A new function is one line here, and its behaviour in each of
// these.
//
// The types are those of the C interface: statuses and whole numbers of 32 bits, switches of 16 (0
// or 1), texts of 8-bit characters. Every function returns its status, 0 for success. h is the
// session's handle, ch the channel (slot index + 1); a pointer that is not const is an output.
#pragma once

#include <cstdint>

// clang-format off

// Functions that set one value of a channel: name, type of the value. Their parameters are
// (uint32_t h, int32_t ch, TYPE value).
#define KELVRA_DRIVER_SETTERS(X)                      \
    /* averaging of readings */                       \
    X(psdrv_avg_setEnabled, uint16_t)                 \
    X(psdrv_avg_setAutoEnabled, uint16_t)             \
    X(psdrv_avg_setAutoType, int32_t)                 \
    X(psdrv_avg_setAutoResolution, int32_t)           \
    X(psdrv_avg_setAutoMaxMeasuringTime, double)      \
    X(psdrv_avg_setAutoNoiseSignalRatio, double)      \
    X(psdrv_avg_setSlot, int32_t)                     \
    X(psdrv_avg_setCount, int32_t)                    \
    X(psdrv_avg_setTerminalControl, int32_t)          \
    /* corrections */                                 \
    X(psdrv_chan_setCorrectionFrequency, double)      \
    X(psdrv_corr_setOffsetEnabled, uint16_t)          \
    X(psdrv_corr_setOffset, double)                   \
    X(psdrv_corr_setSParamDeviceEnabled, uint16_t)    \
    X(psdrv_chan_setSourceGammaCorrEnabled, uint16_t) \
    X(psdrv_chan_setSourceGammaMagnitude, double)     \
    X(psdrv_chan_setSourceGammaPhase, double)         \
    X(psdrv_corr_setDutyCycleEnabled, uint16_t)       \
    X(psdrv_corr_setDutyCycle, double)                \
    /* range and sampling */                          \
    X(psdrv_range_setAutoEnabled, uint16_t)           \
    X(psdrv_range_setCrossoverLevel, double)          \
    X(psdrv_range_setRange, int32_t)                  \
    X(psdrv_chan_setSamplingFrequency, int32_t)       \
    X(psdrv_chan_setInitContinuousEnabled, uint16_t)  \
    /* trigger */                                     \
    X(psdrv_trigger_setSource, int32_t)               \
    X(psdrv_trigger_setSlope, int32_t)                \
    X(psdrv_trigger_setDelay, double)                 \
    X(psdrv_trigger_setCount, int32_t)                \
    X(psdrv_trigger_setLevel, double)                 \
    X(psdrv_trigger_setHysteresis, double)            \
    X(psdrv_trigger_setHoldoff, double)               \
    /* measurement modes */                           \
    X(psdrv_chan_mode, int32_t)                       \
    X(psdrv_chan_setContAvAperture, double)           \
    X(psdrv_chan_setContAvSmoothingEnabled, uint16_t) \
    X(psdrv_chan_setContAvBufferedEnabled, uint16_t)  \
    X(psdrv_chan_setContAvBufferSize, int32_t)        \
    X(psdrv_chan_setBurstDropoutTolerance, double)    \
    /* trace */                                       \
    X(psdrv_scope_setAverageEnabled, uint16_t)        \
    X(psdrv_scope_setAutoEnabled, uint16_t)           \
    X(psdrv_scope_setAutoType, int32_t)               \
    X(psdrv_scope_setAutoResolution, int32_t)         \
    X(psdrv_scope_setAutoMaxMeasuringTime, double)    \
    X(psdrv_scope_setAutoNoiseSignalRatio, double)    \
    X(psdrv_scope_setAverageCount, int32_t)           \
    X(psdrv_scope_setAverageTerminalControl, int32_t) \
    X(psdrv_scope_setPoints, int32_t)                 \
    X(psdrv_scope_setTime, double)                    \
    X(psdrv_scope_setOffsetTime, double)              \
    X(psdrv_scope_setRealtimeEnabled, uint16_t)

// All other functions of the instrument driver: name, parameters.
#define KELVRA_DRIVER_FUNCTIONS(X)                                                              \
    /* session */                                                                               \
    X(psdrv_init, (const char* resource, int32_t checkIdentity, int32_t reset, uint32_t* h))    \
    X(psdrv_AddSensor,                                                                          \
      (uint32_t h, int32_t ch, const char* resource, int32_t checkIdentity, int32_t reset))     \
    X(psdrv_close, (uint32_t h))                                                                \
    X(psdrv_error_message, (uint32_t h, int32_t status, char* text))                            \
    X(psdrv_error_query, (uint32_t h, int32_t* code, char* text))                               \
    /* measuring */                                                                             \
    X(psdrv_chan_reset, (uint32_t h, int32_t ch))                                               \
    X(psdrv_chans_initiate, (uint32_t h))                                                       \
    X(psdrv_meass_sendSoftwareTrigger, (uint32_t h, int32_t ch))                                \
    X(psdrv_chan_isMeasurementComplete, (uint32_t h, int32_t ch, uint16_t* complete))           \
    X(psdrv_meass_fetchMeasurement, (uint32_t h, int32_t ch, double* reading))                  \
    X(psdrv_meass_fetchBufferMeasurement,                                                       \
      (uint32_t h, int32_t ch, int32_t size, double* array, int32_t* count))                    \
    X(psdrv_avg_getCount, (uint32_t h, int32_t ch, int32_t* count))                             \
    /* settings of two values */                                                                \
    X(psdrv_tslot_configureTimeSlot, (uint32_t h, int32_t ch, int32_t count, double width))     \
    X(psdrv_timing_configureExclude, (uint32_t h, int32_t ch, double start, double stop))       \
    /* zeroing, self test and information */                                                    \
    X(psdrv_chan_zero, (uint32_t h, int32_t ch))                                                \
    X(psdrv_chan_isZeroComplete, (uint32_t h, int32_t ch, uint16_t* complete))                  \
    X(psdrv_chan_selfTest, (uint32_t h, int32_t ch, char* text))                                \
    X(psdrv_chan_infosCount, (uint32_t h, int32_t ch, int32_t* count))                          \
    X(psdrv_chan_infoHeader, (uint32_t h, int32_t ch, int32_t index, int32_t size, char* text))

// The functions of the device list, in the same form.
#define KELVRA_DEVICE_LIST_FUNCTIONS(X)                                          \
    X(TeskLockDeviceList, ())                                                    \
    X(TeskGetDeviceListLength, (int32_t* length))                                \
    X(TeskGetDeviceInfo,                                                         \
      (int32_t index, char* name, char* type, char* serial, int32_t* connected)) \
    X(TeskCloseDriver, ())

// clang-format on
