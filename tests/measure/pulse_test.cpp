// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/pulse.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "measure/slot_powers.h"
#include "sensors/settings_fields.h"

namespace kelvra::measure {
namespace {

constexpr double Step = 1e-6;
constexpr double On = 2e-3, Off = 1e-6;  // W

// On from `from` to `until` (us), with straight edges of 20 us around these instants, so that they
// last 16 us from 10 to 90 %.
double PowerAt(double us, double from, double until) {
    constexpr double edge = 20;
    const double part = std::clamp(0.5 + std::min(us - from, until - us) / edge, 0.0, 1.0);
    return Off + part * (On - Off);
}

// Pulses of 100 us that begin at 200 us and every 400 us after that.
std::vector<double> Pulses(int points) {
    std::vector<double> trace;
    for (int i = 0; i < points; ++i) {
        const double us = i * Step * 1e6;
        const double begin = 200 + 400 * std::floor(std::max(us - 100, 0.0) / 400);
        trace.push_back(PowerAt(us, begin, begin + 100));
    }
    return trace;
}

void Expect(const std::optional<double>& got, double wanted, const char* what) {
    ASSERT_TRUE(got.has_value()) << what;
    EXPECT_NEAR(*got, wanted, std::abs(wanted) * 0.01) << what;
}

TEST(Pulse, TwoPulsesGiveEachReading) {
    std::vector<double> trace = Pulses(1000);
    for (int i = 215; i < 218; ++i) trace[static_cast<std::size_t>(i)] = On * 1.25;
    trace[50] = std::nan("");
    const PulseReadings got = ReadPulses(trace, Step, {220e-6, 280e-6});
    Expect(got.peak, On * 1.25, "peak");
    Expect(got.average, On, "average");
    Expect(got.top, On, "top");
    Expect(got.base, Off, "base");
    Expect(got.overshoot, 25, "overshoot");
    Expect(got.riseTime, 16e-6, "rise time");
    Expect(got.fallTime, 16e-6, "fall time");
    Expect(got.width, 100e-6, "width");
    Expect(got.period, 400e-6, "period");
    Expect(got.dutyCycle, 25, "duty cycle");
}

TEST(Pulse, WhatTheTraceDoesNotShowHasNoReading) {
    const std::vector<double> noise{1e-3, 1.1e-3, 0.9e-3, 1.05e-3, 1e-3};
    const std::vector<double> nothing{std::nan(""), INFINITY};
    const std::vector<double> all = Pulses(1000);
    const struct {
        const char* what;
        std::vector<double> trace;
        bool peak, top, rise, fall, width, period;
    } cases[] = {
        {"no value", {}, false, false, false, false, false, false},
        {"none is finite", nothing, false, false, false, false, false, false},
        {"one value", {1e-3}, true, false, false, false, false, false},
        {"an endless range", {-1.7e308, 1.7e308}, true, false, false, false, false, false},
        {"noise", noise, true, false, false, false, false, false},
        {"a rising edge", {all.begin(), all.begin() + 250}, true, true, true, false, false, false},
        {"a falling edge",
         {all.begin() + 250, all.begin() + 400},
         true,
         true,
         false,
         true,
         false,
         false},
        {"one pulse", {all.begin(), all.begin() + 400}, true, true, true, true, true, false},
        {"two falling edges",
         {all.begin() + 250, all.begin() + 800},
         true,
         true,
         true,
         true,
         true,
         true},
    };
    for (const auto& c : cases) {
        const PulseReadings got = ReadPulses(c.trace, Step);
        EXPECT_EQ(got.peak.has_value(), c.peak) << c.what;
        EXPECT_EQ(got.top.has_value(), c.top) << c.what;
        EXPECT_EQ(got.riseTime.has_value(), c.rise) << c.what;
        EXPECT_EQ(got.fallTime.has_value(), c.fall) << c.what;
        EXPECT_EQ(got.width.has_value(), c.width) << c.what;
        EXPECT_EQ(got.period.has_value(), c.period) << c.what;
    }
}

TEST(SlotPowers, AreTheMeanPowersBetweenTheExclusions) {
    sensors::SensorSettings settings = sensors::DefaultSettings();
    settings.ScopeTime = 8;
    settings.TSlotCount = 3;
    settings.TSlotWidth = 4;
    const std::vector<double> trace{1, 1e-3, -3e-3, NAN, 1e-2, 1e-2, INFINITY, 1e-2};
    const struct {
        double start, stop;
        double first, second;  // dBm
    } cases[] = {
        {0, 0, 3.0103, 10},  // the edges themselves do not count
        {1, 0, 4.7712, 10},
        {0, 3, -970, -970},
        {0, 2, 0, 10},
    };
    for (const auto& c : cases) {
        settings.TSlotExclStart = c.start;
        settings.TSlotExclStop = c.stop;
        const std::vector<double> got = SlotPowers(trace, settings);
        ASSERT_EQ(got.size(), 3U);
        EXPECT_NEAR(got[0], c.first, 1e-3) << c.start << ' ' << c.stop;
        EXPECT_NEAR(got[1], c.second, 1e-3) << c.start << ' ' << c.stop;
        EXPECT_EQ(got[2], -970);  // beyond the trace
    }
    settings.TSlotWidth = 0;
    EXPECT_EQ(SlotPowers(trace, settings), std::vector<double>(3, -970));
    EXPECT_EQ(SlotPowers({}, settings), std::vector<double>(3, -970));
}

}  // namespace
}  // namespace kelvra::measure
