// SPDX-License-Identifier: GPL-3.0-or-later
#include "waveform_reader.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <utility>

namespace kelvra::virtual_sensors {
namespace {

// They bound the memory of a scenario and the time for one measurement.
constexpr std::ptrdiff_t MaxWaveforms = 32;
constexpr std::size_t MaxSlots = 1024;
constexpr double ShortestPeriod = 1e-6;  // s, also the shortest slot
constexpr double ShortestWidth = 10e-9;  // s
constexpr double LongestPeriod = 1000;   // s

double FromDb(double db) {
    return std::pow(10, db / 10);
}

double TimeWithin(Words& words, std::string_view what, double smallest) {
    const double time = words.Time();
    if (time < smallest || time > LongestPeriod) {
        words.Fail(std::string(what) + " is no number or out of range");
        return smallest;
    }
    return time;
}

// The two lengths may be equal, also with a rounding error.
bool Fits(double part, double whole) {
    return part <= whole * (1 + 1e-9);
}

void GiveWaveform(Words& words, Scenario& scenario, Waveform waveform) {
    if (scenario.sources.empty()) return words.Fail("no source above this line");
    const auto modulated = std::count_if(scenario.sources.begin(), scenario.sources.end(),
                                         [](const Source& source) { return source.waveform; });
    if (modulated == MaxWaveforms) return words.Fail("more than 32 sources with a waveform");
    Source& source = scenario.sources.back();
    if (source.waveform) return words.Fail("this source has a waveform already");
    source.waveform = std::make_shared<const Waveform>(std::move(waveform));
}

void ReadPulseOption(Words& words, PulseShape& shape) {
    static constexpr Unit Percent[] = {{"%", 0.01}};
    static constexpr Unit Decibels[] = {{"dB", 1}};
    if (words.Take("rise")) {
        shape.edge = EdgeOfRise(words.Time());
    } else if (words.Take("overshoot")) {
        shape.overshoot = words.Measure("the overshoot", Percent, 0, 1).value;
    } else if (words.Take("off")) {
        shape.off = FromDb(words.Measure("the level between the pulses", Decibels, -300, 0).value);
    } else {
        words.Fail("'rise', 'overshoot' or 'off' expected");
    }
}

// A ratio to the source's level.
double ReadSlotLevel(Words& words) {
    return words.Take("off") ? 0 : FromDb(words.Number("the level of the slot", -300, 300));
}

}  // namespace

void ReadPulse(Words& words, Scenario& scenario) {
    PulseShape shape;
    if (!words.Take("period")) return words.Fail("'period' expected");
    shape.period = TimeWithin(words, "the period", ShortestPeriod);
    if (!words.Take("width")) return words.Fail("'width' expected");
    shape.width = TimeWithin(words, "the width", ShortestWidth);
    while (!words.AtEnd()) ReadPulseOption(words, shape);
    if (!words.Error().empty()) return;
    if (!Fits(shape.edge, shape.width)) return words.Fail("the edges are longer than the pulse");
    if (!Fits(shape.width + shape.edge, shape.period))
        return words.Fail("the pulse is longer than its period");
    if (shape.overshoot > 0 && shape.edge == 0) return words.Fail("an overshoot needs a rise time");
    shape.edge = std::min(shape.edge, shape.width);
    shape.period = std::max(shape.period, shape.width + shape.edge);
    GiveWaveform(words, scenario, Waveform::Pulses(shape));
}

void ReadFrame(Words& words, Scenario& scenario) {
    FrameShape shape;
    if (!words.Take("slot")) return words.Fail("'slot' expected");
    shape.slot = TimeWithin(words, "the length of a slot", ShortestPeriod);
    if (words.Take("rise")) shape.edge = EdgeOfRise(words.Time());
    if (!words.Take("levels")) return words.Fail("'levels' expected");
    do {
        shape.levels.push_back(ReadSlotLevel(words));
        if (words.AtEnd()) words.Fail("'dB' expected after the last level");
    } while (!words.AtEnd() && !words.Take("dB"));
    if (!words.Error().empty()) return;
    if (shape.levels.size() > MaxSlots) return words.Fail("more than 1024 slots");
    const double frame = shape.slot * static_cast<double>(shape.levels.size());
    if (frame > LongestPeriod) return words.Fail("the frame is longer than 1000 s");
    if (!Fits(shape.edge, shape.slot)) return words.Fail("the edges are longer than the slots");
    shape.edge = std::min(shape.edge, shape.slot);
    GiveWaveform(words, scenario, Waveform::Frame(shape));
}

}  // namespace kelvra::virtual_sensors
