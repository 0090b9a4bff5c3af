// SPDX-License-Identifier: GPL-3.0-or-later
#include "measurement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <utility>
#include <vector>

#include "scenario_reader.h"

namespace kelvra::bench {
namespace {

using Changes = std::vector<std::pair<Setting, double>>;

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

TEST(Settings, TakeTheirLimitsAndNothingBeyond) {
    for (std::size_t i = 0; i < SettingCount; ++i) {
        const auto setting = static_cast<Setting>(i);
        const SettingLimits& limits = LimitsOf(setting);
        SettingValues settings;
        EXPECT_TRUE(settings.Set(setting, limits.smallest)) << limits.name;
        EXPECT_TRUE(settings.Set(setting, limits.largest)) << limits.name;
        EXPECT_FALSE(settings.Set(setting, limits.largest + 1)) << limits.name;
        EXPECT_FALSE(settings.Set(setting, limits.smallest - 1)) << limits.name;
        EXPECT_FALSE(settings.Set(setting, std::nan(""))) << limits.name;
        EXPECT_EQ(settings[setting], limits.largest) << limits.name;
        EXPECT_TRUE(settings.Set(setting, limits.afterReset)) << limits.name;
    }
}

TEST(Averaging, PicksTheCountThatTheSettingsAskFor) {
    const struct {
        std::string noise;
        Changes changes;
        int32_t count;
    } cases[] = {
        {"0.04 dB", {}, 16},  // resolution 3: 0.01 dB
        {"0.04 dB", {{Setting::avg_setAutoResolution, 1}}, 1},
        {"0.04 dB", {{Setting::avg_setAutoType, 1}}, 1},  // 0.1 dB
        {"1 mW", {{Setting::avg_setAutoMaxMeasuringTime, 0.2}}, 5},
        {"1 mW", {{Setting::avg_setAutoMaxMeasuringTime, 0}}, 1},
        {"1 dB", {{Setting::avg_setAutoEnabled, 0}, {Setting::avg_setCount, 12}}, 12},
        {"1 dB", {{Setting::avg_setEnabled, 0}}, 1},
        {"1 dB", {{Setting::chan_mode, 4}, {Setting::scope_setAverageEnabled, 0}}, 1},
    };
    for (const auto& c : cases) {
        const VirtualSensor sensor(OneSensor(c.noise), 0);
        EXPECT_EQ(AverageCount(With(c.changes), sensor), c.count) << c.noise << ' ' << c.count;
    }
}

TEST(Measurement, LastsAsLongAsItsModeNeeds) {
    const struct {
        Changes changes;
        double duration;
    } cases[] = {
        {{{Setting::chan_setContAvAperture, 0.1}}, 0.8},
        {{{Setting::chan_mode, 1}, {Setting::chan_setContAvBufferSize, 10}}, 1.6},
        {{{Setting::chan_mode, 2}, {Setting::slotCount, 5}, {Setting::slotWidth, 0.01}}, 0.2},
        {{{Setting::chan_mode, 3}, {Setting::chan_setBurstDropoutTolerance, 0.004}}, 0.02},
        {{{Setting::chan_mode, 4}, {Setting::scope_setOffsetTime, 0.1}}, 0.44},
    };
    for (const auto& c : cases) EXPECT_NEAR(Duration(With(c.changes), 4), c.duration, 1e-9);
}

TEST(Corrections, MultiplyThePower) {
    const struct {
        Changes changes;
        double factor;
    } cases[] = {
        {{}, 1},
        {{{Setting::corr_setOffset, 10}}, 1},  // not switched on
        {{{Setting::corr_setOffset, 10}, {Setting::corr_setOffsetEnabled, 1}}, 10},
        {{{Setting::corr_setDutyCycle, 25}, {Setting::corr_setDutyCycleEnabled, 1}}, 4},
        {{{Setting::corr_setSParamDeviceEnabled, 1}}, 1.0232929922807541},
        {{{Setting::chan_setSourceGammaCorrEnabled, 1}}, 0.9025},
        {{{Setting::chan_setCorrectionFrequency, 5e9}}, 1.0092528860766844},
    };
    for (const auto& c : cases) EXPECT_NEAR(CorrectionFactor(With(c.changes)), c.factor, 1e-12);
}

TEST(Measurement, CompletesAfterItsTriggerOnly) {
    constexpr double Never = 1e9;
    const struct {
        Changes changes;
        bool software;
        double from, until;  // between these times, from a start at 1 s, it completes
    } cases[] = {
        {{}, false, 1.039, 1.041},
        {{{Setting::trigger_setDelay, 0.5}}, false, 1.539, 1.541},
        {{{Setting::trigger_setSource, 0}}, false, Never, Never},
        {{{Setting::trigger_setSource, 2}}, true, 2.039, 2.041},  // triggered at 2 s
        {{{Setting::trigger_setSource, 1}}, false, 1.239, 1.241},
        {{{Setting::trigger_setSource, 4}, {Setting::trigger_setLevel, 0.9e-3}},
         false,
         1.039,
         1.041},
        {{{Setting::trigger_setSource, 4}, {Setting::trigger_setLevel, 1.1e-3}},
         false,
         Never,
         Never},
    };
    Scenario scenario = OneSensor("0 dB");
    scenario.externalPeriod = 0.3;
    for (const auto& c : cases) {
        VirtualSensor sensor(scenario, 0);
        Measurement measurement;
        measurement.Start(With(c.changes), sensor, scenario, 1);
        if (c.software) measurement.Trigger(2);
        EXPECT_FALSE(measurement.Complete(sensor, c.from));
        EXPECT_EQ(measurement.Complete(sensor, c.until), c.until != Never);
    }
}

TEST(Noise, FallsWithTheSquareRootOfTheAveraging) {
    VirtualSensor sensor(OneSensor("1 uW"), 0);
    for (const double count : {1.0, 100.0}) {
        double sum = 0;
        double squares = 0;
        for (int i = 0; i < 10000; ++i) {
            const double deviation = (sensor.Measure(count) - 1e-3) * 1e6;
            sum += deviation;
            squares += deviation * deviation;
        }
        EXPECT_NEAR(sum / 10000, 0, 0.05);
        EXPECT_NEAR(std::sqrt(squares / 10000) * std::sqrt(count), 1, 0.05);
    }
}

}  // namespace
}  // namespace kelvra::bench
