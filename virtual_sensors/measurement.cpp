// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <numbers>

#include "conflicts.h"

namespace kelvra::virtual_sensors {
namespace {

constexpr double MaxCount = 65536;
constexpr double RefusalTime = 0.01;       // s
constexpr double BurstLength = 1e-3;       // s
constexpr double FrequencySlope = 0.02;    // dB per decade above 50 MHz
constexpr double OwnReflection = 0.05;     // of the sensor's input, at 0 degrees
constexpr double DeviceAttenuation = 0.1;  // dB, of the device that S parameters describe

double FromDb(double db) {
    return std::pow(10, db / 10);
}

// Traces have averaging settings of their own.
struct AveragingSettings {
    Setting enabled, automatic, type, resolution, ratio, maxTime, count;
};
constexpr AveragingSettings OfReadings{Setting::psdrv_avg_setEnabled,
                                       Setting::psdrv_avg_setAutoEnabled,
                                       Setting::psdrv_avg_setAutoType,
                                       Setting::psdrv_avg_setAutoResolution,
                                       Setting::psdrv_avg_setAutoNoiseSignalRatio,
                                       Setting::psdrv_avg_setAutoMaxMeasuringTime,
                                       Setting::psdrv_avg_setCount};
constexpr AveragingSettings OfTraces{Setting::psdrv_scope_setAverageEnabled,
                                     Setting::psdrv_scope_setAutoEnabled,
                                     Setting::psdrv_scope_setAutoType,
                                     Setting::psdrv_scope_setAutoResolution,
                                     Setting::psdrv_scope_setAutoNoiseSignalRatio,
                                     Setting::psdrv_scope_setAutoMaxMeasuringTime,
                                     Setting::psdrv_scope_setAverageCount};

TriggerLevel LevelOf(const SettingValues& settings) {
    return {settings[Setting::psdrv_trigger_setLevel],
            !settings.IsOn(Setting::psdrv_trigger_setSlope),
            settings[Setting::psdrv_trigger_setHysteresis]};
}

}  // namespace

int32_t AverageCount(const SettingValues& settings, const VirtualSensor& sensor) {
    const AveragingSettings& of = ModeOf(settings) == Mode::Trace ? OfTraces : OfReadings;
    if (!settings.IsOn(of.enabled)) return 1;
    if (!settings.IsOn(of.automatic)) return static_cast<int32_t>(settings[of.count]);
    const double wantedDb =
        settings.IsOn(of.type) ? settings[of.ratio] : std::pow(10, 1 - settings[of.resolution]);
    const double needed = std::pow(sensor.NoiseDb() / wantedDb, 2);
    const double allowed = std::floor(settings[of.maxTime] / Duration(settings, 1));
    const auto rounded =
        std::bit_ceil(static_cast<uint32_t>(std::min(std::ceil(needed), MaxCount)));
    return static_cast<int32_t>(std::clamp(allowed, 1.0, static_cast<double>(rounded)));
}

double Duration(const SettingValues& settings, int32_t count) {
    const double aperture = 2 * settings[Setting::psdrv_chan_setContAvAperture];
    const double points = PointCount(settings);
    switch (ModeOf(settings)) {
        case Mode::Average:
            return aperture * count;
        case Mode::Buffered:
            return aperture * count * points;
        case Mode::Slots:
            return settings[Setting::SlotWidth] * count * points;
        case Mode::Burst:
            return (BurstLength + settings[Setting::psdrv_chan_setBurstDropoutTolerance]) * count;
        case Mode::Trace:
            break;
    }
    const double offset = std::max(settings[Setting::psdrv_scope_setOffsetTime], 0.0);
    return (settings[Setting::psdrv_scope_setTime] + offset) * count;
}

double CorrectionFactor(const SettingValues& settings) {
    const double decades = std::log10(settings[Setting::psdrv_chan_setCorrectionFrequency] / 5e7);
    double factor = FromDb(FrequencySlope * std::max(decades, 0.0));
    if (settings.IsOn(Setting::psdrv_corr_setOffsetEnabled)) {
        factor *= FromDb(settings[Setting::psdrv_corr_setOffset]);
    }
    if (settings.IsOn(Setting::psdrv_corr_setDutyCycleEnabled)) {
        factor /= settings[Setting::psdrv_corr_setDutyCycle] / 100;
    }
    if (settings.IsOn(Setting::psdrv_corr_setSParamDeviceEnabled))
        factor *= FromDb(DeviceAttenuation);
    if (settings.IsOn(Setting::psdrv_chan_setSourceGammaCorrEnabled)) {
        // |1 - G1 G2|^2 of the two reflections
        const double product =
            OwnReflection * settings[Setting::psdrv_chan_setSourceGammaMagnitude];
        const double phase =
            settings[Setting::psdrv_chan_setSourceGammaPhase] * std::numbers::pi / 180;
        factor *= 1 - 2 * product * std::cos(phase) + product * product;
    }
    return factor;
}

void Measurement::Start(const SettingValues& settings, const VirtualSensor& sensor,
                        const Scenario& scenario, double now) {
    mode_ = ModeOf(settings);
    count_ = AverageCount(settings, sensor);
    factor_ = CorrectionFactor(settings);
    spans_ = MeasuredSpans(settings, count_);
    const double planned = settings[Setting::psdrv_trigger_setDelay] + Duration(settings, count_);
    afterTrigger_ =
        scenario.fixedDuration.value_or(std::max(planned, 0.0) * scenario.durationFactor);
    awaitsSoftware_ = false;
    search_.reset();
    triggerAt_.reset();
    resultW_.clear();
    conflict_ = FindConflict(settings, sensor.Kind());
    if (conflict_ != Status::Ok) {
        afterTrigger_ = scenario.fixedDuration.value_or(RefusalTime);
        triggerAt_ = now;
        return;
    }
    AwaitTrigger(settings, sensor.Sees(), scenario, now);
}

void Measurement::AwaitTrigger(const SettingValues& settings, const Signal& signal,
                               const Scenario& scenario, double now) {
    switch (SourceOf(settings)) {
        case TriggerSource::Single:
        case TriggerSource::Hold:
            awaitsSoftware_ = true;
            break;
        case TriggerSource::External:
            if (!scenario.externalPeriod) break;
            triggerAt_ =
                (std::floor(now / *scenario.externalPeriod) + 1) * *scenario.externalPeriod;
            break;
        case TriggerSource::Immediate:
            triggerAt_ = now;
            break;
        case TriggerSource::Internal:
            search_.emplace(signal, LevelOf(settings), now,
                            lastInternal_ + settings[Setting::psdrv_trigger_setHoldoff]);
            LookForTrigger(signal, now);
            break;
    }
}

void Measurement::LookForTrigger(const Signal& signal, double now) {
    if (!search_) return;
    triggerAt_ = search_->Find(signal, now);
    if (!triggerAt_) return;
    lastInternal_ = *triggerAt_;
    search_.reset();
}

void Measurement::Trigger(double now) {
    if (!awaitsSoftware_) return;
    awaitsSoftware_ = false;
    triggerAt_ = now;
}

bool Measurement::Complete(VirtualSensor& sensor, double now) {
    LookForTrigger(sensor.Sees(), now);
    if (!triggerAt_ || now < *triggerAt_ + afterTrigger_) return false;
    if (resultW_.empty()) {
        resultW_.reserve(static_cast<std::size_t>(spans_.Count()));
        for (int32_t i = 0; i < spans_.Count(); ++i) {
            const double power = spans_.PowerW(sensor.Sees(), *triggerAt_, i);
            resultW_.push_back(sensor.Measure(power, count_) * factor_);
        }
    }
    return true;
}

}  // namespace kelvra::virtual_sensors
