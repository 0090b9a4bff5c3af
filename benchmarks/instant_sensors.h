// SPDX-License-Identifier: GPL-3.0-or-later
// Sensors that cost nothing: driver functions that answer at once, so that only Kelvra is measured.
// They replace the libraries after start-up; the next tick finds the sensors.
#pragma once

#include <cstring>
#include <string>
#include <type_traits>

#include "app/kelvra.h"

namespace kelvra::benchmarks {

using driver::Channel;
using driver::Handle;
using driver::Status;

template <class... Arguments>
void Plug(driver::Operation<Arguments...>& operation,
          std::type_identity_t<Status (*)(Arguments...)> function) {
    operation.address = reinterpret_cast<void*>(function);
}

template <class... Arguments>
void Succeed(driver::Operation<Arguments...>& operation) {
    Plug(operation, [](Arguments...) -> Status { return 0; });
}

inline void PlugInSettings(driver::InstrumentOperations& op) {
    Succeed(op.psdrv_chan_reset);
#define X(name, type) Succeed(op.name);
    KELVRA_DRIVER_SETTERS(X)
#undef X
}

// Measurements that are complete when first polled, or never. Each reading differs from the one
// before.
inline void PlugInMeasuring(driver::InstrumentOperations& op, bool complete) {
    Plug(
        op.psdrv_init, +[](const char*, std::int32_t, std::int32_t, Handle* opened) -> Status {
            *opened = 1;
            return 0;
        });
    Succeed(op.psdrv_AddSensor);
    Succeed(op.psdrv_close);
    Succeed(op.psdrv_chans_initiate);
    const auto answer = complete ? +[](Handle, Channel, driver::Switch* done) -> Status {
        *done = 1;
        return 0;
    }
    : +[](Handle, Channel, driver::Switch*) -> Status { return 0; };
    Plug(op.psdrv_chan_isMeasurementComplete, answer);
    Plug(
        op.psdrv_meass_fetchMeasurement, +[](Handle, Channel channel, double* power) -> Status {
            const double next = *power * 1.013;
            *power = next > 1e-9 && next < 1e-2 ? next : 1e-6 * channel;
            return 0;
        });
    Plug(
        op.psdrv_avg_getCount, +[](Handle, Channel, std::int32_t* count) -> Status {
            *count = *count % 64 + 1;
            return 0;
        });
}

// A list of that many devices, each with a serial number and a name.
template <int Sensors>
void PlugInDevices(driver::DeviceListOperations& op) {
    Succeed(op.TeskLockDeviceList);
    Succeed(op.TeskCloseDriver);
    Plug(
        op.TeskGetDeviceListLength, +[](std::int32_t* length) -> Status {
            *length = Sensors;
            return 0;
        });
    Plug(
        op.TeskGetDeviceInfo,
        +[](std::int32_t index, char* name, char* type, char* serial,
            std::int32_t* connected) -> Status {
            std::strcpy(type, "PS-102");
            std::strcpy(serial, util::TrimmedNumberText(std::int64_t{1000 + index}).c_str());
            std::strcpy(name, ("PS-102 " + std::string(serial)).c_str());
            *connected = 1;
            return 0;
        });
}

template <int Sensors>
void PlugIn(app::Kelvra& kelvra, bool complete) {
    PlugInSettings(kelvra.library.instrument);
    PlugInMeasuring(kelvra.library.instrument, complete);
    PlugInDevices<Sensors>(kelvra.library.deviceList);
    kelvra.discovery.Search();
}

}  // namespace kelvra::benchmarks
