// SPDX-License-Identifier: GPL-3.0-or-later
#include "waveform.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kelvra::virtual_sensors {
namespace {

constexpr int EdgeLines = 32;      // straight lines that an edge consists of
constexpr double RingDecay = 1.5;  // edges after which the ringing has fallen to 1/e
constexpr double RingLength = 10;  // edges after which it is over

// A raised cosine from 0 to 1; x is 0 to 1.
double Rise(double x) {
    return (1 - std::cos(std::numbers::pi * x)) / 2;
}

// x edges after the end of the edge. The first maximum is 1.
double Ring(double x) {
    const auto ring = [](double at) {
        return std::exp(-at / RingDecay) * std::sin(std::numbers::pi * at);
    };
    static const double Largest = ring(std::atan(std::numbers::pi * RingDecay) / std::numbers::pi);
    return x > 0 && x < RingLength ? ring(x) / Largest : 0;
}

bool IsLower(const Waveform::Point& a, const Waveform::Point& b) {
    return a.power < b.power;
}

}  // namespace

double EdgeOfRise(double rise) {
    static const double TenPercent = std::acos(0.8) / std::numbers::pi;  // of the edge
    return rise / (1 - 2 * TenPercent);
}

Waveform Waveform::Pulses(const PulseShape& shape) {
    const double height = 1 - shape.off;
    const auto ring = [&](double edges) { return shape.overshoot * Ring(edges - 1); };
    Waveform waveform;
    waveform.AddEdge(0, shape.edge, shape.off, 1);
    if (shape.overshoot > 0) {
        for (int i = EdgeLines + 1; i < (RingLength + 1) * EdgeLines; ++i) {
            const double edges = static_cast<double>(i) / EdgeLines;
            if (shape.edge * edges >= shape.width) break;
            waveform.Add(shape.edge * edges, 1 + height * ring(edges));
        }
    }
    // The falling edge takes what is left of the ringing with it.
    const double rest = shape.overshoot > 0 ? ring(shape.width / shape.edge) : 0;
    waveform.AddEdge(shape.width, shape.edge, 1 + height * rest, shape.off);
    waveform.Add(shape.period, shape.off);
    return waveform;
}

Waveform Waveform::Frame(const FrameShape& shape) {
    Waveform waveform;
    double before = shape.levels.back();
    double begin = 0;
    for (const double level : shape.levels) {
        waveform.AddEdge(begin, shape.edge, before, level);
        before = level;
        begin += shape.slot;
    }
    waveform.Add(begin, before);
    return waveform;
}

double Waveform::Highest() const {
    return std::max_element(points_.begin(), points_.end(), IsLower)->power;
}

double Waveform::Lowest() const {
    return std::min_element(points_.begin(), points_.end(), IsLower)->power;
}

double Waveform::PhaseOf(double time) const {
    const double phase = std::fmod(time, Period());
    return phase < 0 ? phase + Period() : phase;
}

double Waveform::Mean(double start, double length) const {
    const double phase = PhaseOf(start);
    const double end = phase + length;
    const double periods = std::floor(end / Period());
    const double energy =
        periods * points_.back().energy + EnergyUpTo(end - periods * Period()) - EnergyUpTo(phase);
    return energy / length;
}

void Waveform::Add(double time, double power) {
    double energy = 0;
    if (!points_.empty()) {
        const Point& last = points_.back();
        energy = last.energy + (time - last.time) * (last.power + power) / 2;
    }
    points_.push_back({time, power, energy});
}

void Waveform::AddEdge(double begin, double length, double from, double to) {
    Add(begin, from);
    for (int i = 1; i < EdgeLines && length > 0; ++i) {
        const double x = static_cast<double>(i) / EdgeLines;
        Add(begin + length * x, from + (to - from) * Rise(x));
    }
    Add(begin + length, to);
}

double Waveform::EnergyUpTo(double phase) const {
    const auto after =
        std::upper_bound(points_.begin() + 1, points_.end() - 1, phase,
                         [](double time, const Point& point) { return time < point.time; });
    const Point& from = *(after - 1);
    const double passed = phase - from.time;
    const double line = after->time - from.time;
    const double growth = line > 0 ? (after->power - from.power) * passed / line : 0;
    return from.energy + passed * (from.power + growth / 2);
}

}  // namespace kelvra::virtual_sensors
