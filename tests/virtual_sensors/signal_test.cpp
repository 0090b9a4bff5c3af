// SPDX-License-Identifier: GPL-3.0-or-later
// What pulse trains and frames look like, and what trigger and modes make of them.
#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "measurement.h"
#include "scenario_reader.h"

namespace kelvra::virtual_sensors {
namespace {

using S = Setting;
constexpr double Never = 1e9;
const double LevelW = std::pow(10, -3.1);  // -1 dBm

// One sensor that sees 1 mW with this waveform.
Scenario Seeing(const std::string& waveform) {
    ScenarioResult result = ReadScenario(
        "duration 0\nsource g 0 dBm\n" + waveform + "\nsensor PS-101 1\nsees g 0 dB", "test");
    EXPECT_EQ(result.error, "");
    return result.scenario;
}

// 1, 0.631, 1, 0.1 and 0.1 mW, each for 1 ms.
Scenario FiveSlots() {
    return Seeing("frame slot 1 ms levels 0 -2 0 -10 -10 dB");
}

// When the signal rises through this power for the first time in 1 ms; the measured mean is that of
// a nanosecond.
double RisesAt(const Signal& signal, double powerW) {
    double time = 0;
    while (time < 1e-3 && signal.MeanW(time, 1e-9) < powerW) time += 1e-9;
    return time;
}

TEST(Pulses, HaveTheRiseTimeWidthOvershootAndMeanThatWereAskedFor) {
    const struct {
        const char* waveform;
        double rise, highest, mean;  // s, mW
    } cases[] = {
        {"pulse period 1 ms width 200 us", 0, 1, 0.2},
        {"pulse period 1 ms width 200 us rise 10 us", 10e-6, 1, 0.2},
        {"pulse period 1 ms width 200 us rise 10 us off -10 dB", 10e-6, 1, 0.28},
        {"pulse period 1 ms width 200 us rise 10 us overshoot 20 %", 10e-6, 1.2, 0.2016},
    };
    for (const auto& [waveform, rise, highest, mean] : cases) {
        const VirtualSensor sensor(Seeing(waveform), 0);
        const Signal& signal = sensor.Sees();
        const double low = signal.MeanW(0.9e-3, 1e-6);
        const auto risesTo = [&](double share) {
            return RisesAt(signal, low + share * (1e-3 - low));
        };
        EXPECT_NEAR(risesTo(0.9) - risesTo(0.1), rise, 0.02e-6) << waveform;
        EXPECT_FALSE(signal.MayCross((highest + 0.001) * 1e-3)) << waveform;
        EXPECT_TRUE(signal.MayCross((highest - 0.002) * 1e-3)) << waveform;
        EXPECT_NEAR(signal.MeanW(), mean * 1e-3, 0.0005e-3) << waveform;
        EXPECT_NEAR(signal.MeanW(0.37, 0.25), signal.MeanW(), 1e-9) << waveform;
        EXPECT_NEAR(signal.MeanW(-0.4e-3, 0.3e-3), low, 1e-9) << waveform;
    }
}

TEST(InternalTrigger, ComesWhenTheLevelIsPassedByTheSlope) {
    const struct {
        const char* waveform;
        double start;  // ms
        bool rising;
        double hysteresisDb;
        double earliest;  // ms
        double time;      // ms
    } cases[] = {
        {"frame slot 1 ms levels 0 -2 0 -10 dB", 0.5, true, 0, 0, 2},
        {"frame slot 1 ms levels 0 -2 0 -10 dB", 2, true, 0, 0, 2},
        {"frame slot 1 ms levels 0 -2 0 -10 dB", 0.5, true, 3, 0, 4},
        {"frame slot 1 ms levels 0 -2 0 -10 dB", 0.5, false, 0, 0, 1},
        {"frame slot 1 ms levels 0 -2 0 -10 dB", 1.5, false, 0.5, 0, 3},
        {"frame slot 1 ms levels 0 -2 0 -10 dB", 0.5, false, 2, 0, Never},
        {"frame slot 1 ms levels 0 -2 0 -10 dB", 0.5, true, 0, 2.5, 4},
        {"frame slot 1 ms levels 0 -2 0 -10 dB", 0.5, true, 3, 1000.5, 1004},
        {"frame slot 1 ms levels 0 -0.5 dB", 0.5, true, 0, 0, Never},
        {"pulse period 3 ms width 1 ms rise 0.1 ms off -20 dB", 2.9, false, 0, 0, 4.05},
        {"", 0.5, true, 3, 0, 0.5},
        {"", 0.5, true, 3, 7, 7},
    };
    for (const auto& c : cases) {
        const VirtualSensor sensor(Seeing(c.waveform), 0);
        TriggerSearch search(sensor.Sees(), {LevelW, c.rising, c.hysteresisDb}, c.start * 1e-3,
                             c.earliest * 1e-3);
        std::optional<double> found;
        double now = c.start * 1e-3;
        for (; !found && now < 2; now += 0.3e-3) found = search.Find(sensor.Sees(), now);
        EXPECT_NEAR(found ? *found * 1e3 : Never, c.time, 0.005) << c.waveform << ", " << c.start;
    }
}

TEST(InternalTrigger, IsHeldOffAfterTheLastOne) {
    const Scenario scenario = FiveSlots();
    VirtualSensor sensor(scenario, 0);
    SettingValues settings;
    settings.Set(S::psdrv_trigger_setSource, 4);
    settings.Set(S::psdrv_trigger_setLevel, LevelW);
    settings.Set(S::psdrv_trigger_setHoldoff, 3.5e-3);
    Measurement measurement;
    constexpr struct { double start, trigger; } cases[] = {{0.5e-3, 2e-3}, {4.5e-3, 7e-3}};
    for (const auto& [start, trigger] : cases) {
        measurement.Start(settings, sensor, scenario, start);
        EXPECT_FALSE(measurement.Complete(sensor, trigger - 0.1e-3)) << trigger;
        EXPECT_TRUE(measurement.Complete(sensor, trigger + 0.1e-3)) << trigger;
    }
}

TEST(Values, AreTheMeansOfTheirSpans) {
    using Changes = std::vector<std::pair<Setting, double>>;
    const Changes slots{{S::psdrv_chan_mode, 2}, {S::SlotCount, 3}, {S::SlotWidth, 2e-3}};
    const Changes trace{{S::psdrv_chan_mode, 4},
                        {S::psdrv_scope_setPoints, 8},
                        {S::psdrv_scope_setTime, 4e-3},
                        {S::psdrv_scope_setOffsetTime, -1e-3}};
    const Changes average{{S::psdrv_chan_setContAvAperture, 5e-4}};
    const Changes buffered{{S::psdrv_chan_mode, 1}, {S::psdrv_chan_setContAvAperture, 5e-4}};
    const Changes burst{{S::psdrv_chan_mode, 3}, {S::psdrv_trigger_setLevel, LevelW}};
    const Setting delay = S::psdrv_trigger_setDelay;
    const Setting dropOut = S::psdrv_chan_setBurstDropoutTolerance;
    const Setting count = S::psdrv_avg_setCount;
    const struct {
        const Changes& mode;
        Changes more;
        std::size_t index;
        double milliwatts;
    } cases[] = {
        {slots, {}, 0, 0.815479},
        {slots, {{S::ExcludeStart, 5e-4}, {S::ExcludeStop, 1e-3}}, 1, 1},
        {slots, {{S::ExcludeStart, 1.2e-3}}, 1, 0.1},
        {slots, {{S::ExcludeStart, 5e-4}, {S::ExcludeStop, 1e-3}, {delay, 1e-3}}, 0, 0.630957},
        {trace, {}, 0, 0.1},
        {trace, {}, 2, 1},
        {trace, {{delay, 2e-3}}, 1, 0.630957},
        {average, {}, 0, 1},
        {average, {{delay, 1e-3}}, 0, 0.630957},
        {average, {{count, 4}}, 0, 0.682739},
        {buffered, {}, 3, 0.1},
        {buffered, {{count, 2}}, 1, 0.55},
        {burst, {{delay, 1e-3}}, 0, 1},
        {burst, {{dropOut, 1.5e-3}}, 0, 0.876986},
        {burst, {{S::psdrv_trigger_setLevel, 2e-3}, {delay, 3e-3}}, 0, 0.1},
    };
    const Scenario scenario = FiveSlots();
    for (const auto& [mode, more, index, milliwatts] : cases) {
        VirtualSensor sensor(scenario, 0);
        SettingValues settings;
        settings.Set(S::psdrv_avg_setAutoEnabled, 0);
        settings.Set(count, 1);
        for (const Changes* changes : {&mode, &more})
            for (const auto& [setting, value] : *changes) EXPECT_TRUE(settings.Set(setting, value));
        Measurement measurement;
        measurement.Start(settings, sensor, scenario, 0);
        ASSERT_TRUE(measurement.Complete(sensor, 0));
        EXPECT_NEAR(measurement.ResultW()[index] * 1e3, milliwatts, 1e-6)
            << "mode " << settings[S::psdrv_chan_mode] << ", value " << index;
    }
}

}  // namespace
}  // namespace kelvra::virtual_sensors
