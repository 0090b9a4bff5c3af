// SPDX-License-Identifier: GPL-3.0-or-later
// The exported functions of the instrument driver, psdrv_*.
#include <algorithm>

#include "call.h"
#include "shared_bench.h"

namespace kelvra::virtual_sensors {

VirtualBench& TheBench() {
    static VirtualBench bench(ScenarioFromEnvironment());
    return bench;
}

namespace {

constexpr std::size_t TextSize = 256;

// Runs body(bench, channel, twist) on an open channel.
template <class Body>
int32_t OnChannel(Operation operation, uint32_t h, int32_t ch, Body body) noexcept {
    return Call(operation, ch, [&](VirtualBench& bench, const Twist& twist) -> Outcome {
        Channel* channel = nullptr;
        Outcome found = bench.Find(h, ch, channel);
        return channel == nullptr ? found : body(bench, *channel, twist);
    });
}

// Sets the first value, and the second unless the first was refused.
int32_t SetTwo(Operation operation, uint32_t h, int32_t ch, Setting first, double firstValue,
               Setting second, double secondValue) noexcept {
    return OnChannel(operation, h, ch, [&](VirtualBench&, Channel& channel, const Twist&) {
        Outcome outcome = channel.Set(first, firstValue);
        return outcome.status == Status::Ok ? channel.Set(second, secondValue) : outcome;
    });
}

// The result, once there is one of the requested kind.
Outcome FindResult(VirtualBench& bench, Channel& channel, bool asArray) {
    Measurement& measurement = channel.measurement;
    if (!measurement.Complete(*channel.sensor, bench.Now())) return {Status::NoResult};
    if (measurement.Conflict() != Status::Ok) return {measurement.Conflict()};
    if (GivesArray(measurement.ResultMode()) == asArray) return {};
    return {asArray ? Status::NoArrayResult : Status::NoScalarResult};
}

}  // namespace

// NOLINTBEGIN(readability-identifier-naming): the names are the exported functions' own

#define X(name, parameters) KELVRA_VIRTUAL_EXPORT int32_t name parameters;
KELVRA_DRIVER_FUNCTIONS(X)
#undef X

#define X(name, type)                                                                       \
    KELVRA_VIRTUAL_EXPORT int32_t name(uint32_t h, int32_t ch, type value) {                \
        return OnChannel(Operation::name, h, ch,                                            \
                         [&](VirtualBench&, Channel& channel, const Twist&) {               \
                             return channel.Set(Setting::name, static_cast<double>(value)); \
                         });                                                                \
    }
KELVRA_DRIVER_SETTERS(X)
#undef X

KELVRA_VIRTUAL_EXPORT VirtualBench* KelvraSharedBench() {
    try {
        return &TheBench();
    } catch (const std::exception& failure) {
        Report(failure);
        return nullptr;
    }
}

int32_t psdrv_init(const char* resource, int32_t /*idQuery*/, int32_t /*reset*/, uint32_t* h) {
    return Call(Operation::psdrv_init, 1, [&](VirtualBench& bench, const Twist& twist) {
        if (h == nullptr) return Outcome{Status::MissingPointer};
        uint32_t handle = 0;
        Outcome outcome = bench.Init(TextOf(resource), handle);
        return outcome.status == Status::Ok ? PutWhole(h, handle, twist) : outcome;
    });
}

int32_t psdrv_AddSensor(uint32_t h, int32_t ch, const char* resource, int32_t /*idQuery*/,
                        int32_t /*reset*/) {
    return Call(Operation::psdrv_AddSensor, ch, [&](VirtualBench& bench, const Twist&) {
        return bench.AddSensor(h, ch, TextOf(resource));
    });
}

int32_t psdrv_close(uint32_t h) {
    return Call(Operation::psdrv_close, 0,
                [&](VirtualBench& bench, const Twist&) { return bench.Close(h); });
}

// Both error functions accept any handle, so that a failed opening can be explained.
int32_t psdrv_error_message(uint32_t /*h*/, int32_t status, char* text) {
    return Call(Operation::psdrv_error_message, 0, [&](VirtualBench& bench, const Twist& twist) {
        return PutText(text, TextSize, bench.Message(status), twist);
    });
}

int32_t psdrv_error_query(uint32_t /*h*/, int32_t* code, char* text) {
    return Call(Operation::psdrv_error_query, 0, [&](VirtualBench& bench, const Twist& twist) {
        if (code == nullptr || text == nullptr) return Outcome{Status::MissingPointer};
        const QueuedError error = bench.NextError();
        PutWhole(code, error.status, twist);
        return PutText(text, TextSize, error.text, twist);
    });
}

int32_t psdrv_chan_reset(uint32_t h, int32_t ch) {
    return OnChannel(Operation::psdrv_chan_reset, h, ch,
                     [](VirtualBench&, Channel& channel, const Twist&) {
                         channel.Reset();
                         return Outcome{};
                     });
}

int32_t psdrv_tslot_configureTimeSlot(uint32_t h, int32_t ch, int32_t count, double width) {
    return SetTwo(Operation::psdrv_tslot_configureTimeSlot, h, ch, Setting::SlotCount, count,
                  Setting::SlotWidth, width);
}

int32_t psdrv_timing_configureExclude(uint32_t h, int32_t ch, double start, double stop) {
    return SetTwo(Operation::psdrv_timing_configureExclude, h, ch, Setting::ExcludeStart, start,
                  Setting::ExcludeStop, stop);
}

int32_t psdrv_chans_initiate(uint32_t h) {
    return Call(Operation::psdrv_chans_initiate, 0,
                [&](VirtualBench& bench, const Twist&) { return bench.Initiate(h); });
}

int32_t psdrv_meass_sendSoftwareTrigger(uint32_t h, int32_t ch) {
    return OnChannel(Operation::psdrv_meass_sendSoftwareTrigger, h, ch,
                     [](VirtualBench& bench, Channel& channel, const Twist&) {
                         channel.measurement.Trigger(bench.Now());
                         return Outcome{};
                     });
}

int32_t psdrv_chan_isMeasurementComplete(uint32_t h, int32_t ch, uint16_t* complete) {
    return OnChannel(Operation::psdrv_chan_isMeasurementComplete, h, ch,
                     [&](VirtualBench& bench, Channel& channel, const Twist& twist) {
                         const bool done =
                             channel.measurement.Complete(*channel.sensor, bench.Now());
                         return PutWhole(complete, static_cast<uint16_t>(done), twist);
                     });
}

int32_t psdrv_meass_fetchMeasurement(uint32_t h, int32_t ch, double* value) {
    return OnChannel(Operation::psdrv_meass_fetchMeasurement, h, ch,
                     [&](VirtualBench& bench, Channel& channel, const Twist& twist) {
                         if (value == nullptr) return Outcome{Status::MissingPointer};
                         Outcome outcome = FindResult(bench, channel, false);
                         if (outcome.status != Status::Ok) return outcome;
                         *value = twist.value.value_or(channel.measurement.ResultW().front());
                         return outcome;
                     });
}

int32_t psdrv_meass_fetchBufferMeasurement(uint32_t h, int32_t ch, int32_t size, double* values,
                                           int32_t* count) {
    return OnChannel(Operation::psdrv_meass_fetchBufferMeasurement, h, ch,
                     [&](VirtualBench& bench, Channel& channel, const Twist& twist) {
                         if (values == nullptr || count == nullptr)
                             return Outcome{Status::MissingPointer};
                         if (size < 1) return Outcome{Status::ValueOutOfRange, "array size"};
                         Outcome outcome = FindResult(bench, channel, true);
                         if (outcome.status != Status::Ok) return outcome;
                         const std::vector<double>& result = channel.measurement.ResultW();
                         const auto length = std::min(size, static_cast<int32_t>(result.size()));
                         std::copy_n(result.begin(), length, values);
                         if (twist.value) std::fill_n(values, length, *twist.value);
                         return PutWhole(count, length, twist);
                     });
}

int32_t psdrv_avg_getCount(uint32_t h, int32_t ch, int32_t* count) {
    return OnChannel(Operation::psdrv_avg_getCount, h, ch,
                     [&](VirtualBench&, Channel& channel, const Twist& twist) {
                         const int32_t used = AverageCount(channel.settings, *channel.sensor);
                         return PutWhole(count, used, twist);
                     });
}

int32_t psdrv_chan_zero(uint32_t h, int32_t ch) {
    return OnChannel(Operation::psdrv_chan_zero, h, ch,
                     [](VirtualBench& bench, Channel& channel, const Twist&) {
                         channel.zeroEnd = bench.Now() + bench.Plan().zeroDuration;
                         return Outcome{};
                     });
}

// Also true when no zeroing has been started.
int32_t psdrv_chan_isZeroComplete(uint32_t h, int32_t ch, uint16_t* complete) {
    return OnChannel(Operation::psdrv_chan_isZeroComplete, h, ch,
                     [&](VirtualBench& bench, Channel& channel, const Twist& twist) {
                         const bool done = bench.Now() >= channel.zeroEnd;
                         return PutWhole(complete, static_cast<uint16_t>(done), twist);
                     });
}

int32_t psdrv_chan_selfTest(uint32_t h, int32_t ch, char* text) {
    return OnChannel(Operation::psdrv_chan_selfTest, h, ch,
                     [&](VirtualBench&, Channel& channel, const Twist& twist) {
                         return PutText(text, TextSize, channel.sensor->SelfTest(), twist);
                     });
}

int32_t psdrv_chan_infosCount(uint32_t h, int32_t ch, int32_t* count) {
    return OnChannel(Operation::psdrv_chan_infosCount, h, ch,
                     [&](VirtualBench&, Channel&, const Twist& twist) {
                         const auto number = static_cast<int32_t>(VirtualSensor::InfoCount);
                         return PutWhole(count, number, twist);
                     });
}

int32_t psdrv_chan_infoHeader(uint32_t h, int32_t ch, int32_t index, int32_t size, char* text) {
    return OnChannel(Operation::psdrv_chan_infoHeader, h, ch,
                     [&](VirtualBench&, Channel& channel, const Twist& twist) {
                         if (size < 1) return Outcome{Status::ValueOutOfRange, "buffer size"};
                         const auto item = static_cast<std::size_t>(index);
                         if (index < 0 || item >= VirtualSensor::InfoCount)
                             return Outcome{Status::BadIndex};
                         return PutText(text, static_cast<std::size_t>(size),
                                        channel.sensor->Info(item), twist);
                     });
}

// NOLINTEND(readability-identifier-naming)

}  // namespace kelvra::virtual_sensors
