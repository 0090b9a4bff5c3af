// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "scenario_reader.h"

namespace kelvra::virtual_sensors {
namespace {

struct Change {
    Setting setting;
    double value;
};
using Changes = std::vector<Change>;

SettingValues With(const Changes& changes) {
    SettingValues settings;
    for (const auto& [setting, value] : changes) EXPECT_TRUE(settings.Set(setting, value));
    return settings;
}

// A sensor that sees 1 mW with the given noise.
Scenario OneSensor(const std::string& noise) {
    ScenarioResult result =
        ReadScenario("source g 0 dBm\nsensor PS-101 1\nsees g 0 dB\nnoise " + noise, "test");
    EXPECT_EQ(result.error, "");
    return result.scenario;
}

TEST(Corrections, MultiplyThePower) {
    const struct {
        Changes changes;
        double factor;
    } cases[] = {
        {{}, 1},
        {{{Setting::psdrv_corr_setOffset, 10}}, 1},  // not switched on
        {{{Setting::psdrv_corr_setOffset, 10}, {Setting::psdrv_corr_setOffsetEnabled, 1}}, 10},
        {{{Setting::psdrv_corr_setDutyCycle, 25}, {Setting::psdrv_corr_setDutyCycleEnabled, 1}}, 4},
        {{{Setting::psdrv_chan_setSourceGammaCorrEnabled, 1}}, 0.9025},
        {{{Setting::psdrv_chan_setCorrectionFrequency, 5e9}}, 1.0092528860766844},
    };
    for (const auto& [changes, factor] : cases)
        EXPECT_NEAR(CorrectionFactor(With(changes)), factor, 1e-12);
}

TEST(Measurement, CompletesAfterItsTriggerOnly) {
    constexpr double never = 1e9;
    const struct {
        Changes changes;
        double time;  // of completion, after a start at 1 s and a software trigger at 2 s
    } cases[] = {
        {{}, 1.04},
        {{{Setting::psdrv_trigger_setDelay, 0.5}}, 1.54},
        {{{Setting::psdrv_trigger_setSource, 2}}, 2.04},
        {{{Setting::psdrv_trigger_setSource, 1}}, 1.24},  // external, each 0.3 s
        {{{Setting::psdrv_trigger_setSource, 4}, {Setting::psdrv_trigger_setLevel, 0.9e-3}}, 1.04},
        {{{Setting::psdrv_trigger_setSource, 4}, {Setting::psdrv_trigger_setLevel, 1.1e-3}}, never},
    };
    Scenario scenario = OneSensor("0 dB");
    scenario.externalPeriod = 0.3;
    for (const auto& [changes, time] : cases) {
        VirtualSensor sensor(scenario, 0);
        Measurement measurement;
        measurement.Start(With(changes), sensor, scenario, 1);
        if (time > 2 && time != never) measurement.Trigger(2);
        EXPECT_FALSE(measurement.Complete(sensor, time - 0.001)) << time;
        EXPECT_EQ(measurement.Complete(sensor, time + 0.001), time != never) << time;
    }
}

TEST(Measurement, OfSettingsThatExcludeEachOtherEndsSoonAndSaysWhy) {
    using S = Setting;
    const struct {
        Changes changes;
        Status conflict;
    } cases[] = {
        {{{S::psdrv_chan_mode, 2}, {S::ExcludeStart, 6e-4}, {S::ExcludeStop, 4e-4}},
         Status::NothingLeftOfSlot},
        {{{S::psdrv_chan_mode, 2}, {S::ExcludeStart, 6e-4}, {S::ExcludeStop, 3e-4}}, Status::Ok},
        {{{S::ExcludeStart, 6e-4}, {S::ExcludeStop, 4e-4}}, Status::Ok},  // in another mode
        {{{S::psdrv_chan_mode, 2}, {S::SlotCount, 11}, {S::SlotWidth, 1}}, Status::FrameTooLong},
        {{{S::psdrv_chan_mode, 4}, {S::psdrv_scope_setTime, 1e-6}}, Status::PointsTooClose},
        {{{S::psdrv_chan_mode, 4},
          {S::psdrv_scope_setOffsetTime, -4},
          {S::psdrv_trigger_setDelay, -2}},
         Status::TraceTooEarly},
        {{{S::psdrv_trigger_setSource, 4}, {S::psdrv_trigger_setHysteresis, 20}}, Status::Ok},
        {{{S::psdrv_trigger_setSource, 4},
          {S::psdrv_trigger_setHysteresis, 10},
          {S::psdrv_trigger_setLevel, 1e-9}},
         Status::HysteresisTooLarge},
        {{{S::psdrv_trigger_setSource, 4},
          {S::psdrv_trigger_setHysteresis, 20},
          {S::psdrv_trigger_setSlope, 1},
          {S::psdrv_trigger_setLevel, 0.01}},
         Status::HysteresisTooLarge},
    };
    const Scenario scenario = OneSensor("0 dB");
    for (const auto& [changes, conflict] : cases) {
        VirtualSensor sensor(scenario, 0);
        Measurement measurement;
        SettingValues settings = With(changes);
        measurement.Start(settings, sensor, scenario, 1);
        EXPECT_EQ(measurement.Conflict(), conflict) << MessageOf(static_cast<int32_t>(conflict));
        settings.Set(S::psdrv_trigger_setSource, 1);  // which never comes
        measurement.Start(settings, sensor, scenario, 1);
        EXPECT_EQ(measurement.Complete(sensor, 1.02), measurement.Conflict() != Status::Ok);
    }
}

TEST(Noise, FallsWithTheSquareRootOfTheAveraging) {
    VirtualSensor sensor(OneSensor("1 uW"), 0);
    for (const double count : {1.0, 100.0}) {
        double sum = 0;
        double squares = 0;
        for (int i = 0; i < 10000; ++i) {
            const double deviation = (sensor.Measure(1e-3, count) - 1e-3) * 1e6;
            sum += deviation;
            squares += deviation * deviation;
        }
        EXPECT_NEAR(sum / 10000, 0, 0.05);
        EXPECT_NEAR(std::sqrt(squares / 10000) * std::sqrt(count), 1, 0.05);
    }
}

}  // namespace
}  // namespace kelvra::virtual_sensors
