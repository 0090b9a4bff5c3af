// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/pulse.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace kelvra::measure {

namespace {

constexpr int Bins = 64;          // of the histogram, an even number
constexpr double LeastRatio = 2;  // of the states' powers
constexpr double Low = 0.1, Middle = 0.5, High = 0.9;
constexpr double Percent = 100;

struct Sample {
    double time = 0;
    double value = 0;
};

struct Levels {
    double base = 0, top = 0;

    double At(double part) const { return base + part * (top - base); }
};

struct Edge {
    bool rises = false;
    double low = 0, middle = 0, high = 0;  // instants
};

std::vector<Sample> FiniteSamples(std::span<const double> values, double step) {
    std::vector<Sample> samples;
    samples.reserve(values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        if (std::isfinite(values[i])) samples.push_back({static_cast<double>(i) * step, values[i]});
    return samples;
}

struct Bin {
    int count = 0;
    double sum = 0;
};
using Histogram = std::array<Bin, Bins>;

// The mean of the values in the fullest bin of a half and in its neighbours there.
double ModeOf(std::span<const Bin, Bins / 2> half) {
    const auto fullest = std::max_element(
        half.begin(), half.end(), [](const Bin& a, const Bin& b) { return a.count < b.count; });
    Bin all;
    for (auto bin = fullest == half.begin() ? fullest : fullest - 1;
         bin != half.end() && bin <= fullest + 1; ++bin) {
        all.count += bin->count;
        all.sum += bin->sum;
    }
    return all.sum / all.count;
}

std::optional<Levels> FindLevels(const std::vector<Sample>& samples, double least, double most) {
    Histogram histogram{};
    const double range = most - least;
    const double scale = Bins / range;
    if (!std::isfinite(range) || !std::isfinite(scale)) return std::nullopt;
    for (const Sample& sample : samples) {
        const double place = (sample.value - least) * scale;
        Bin& bin = histogram[static_cast<std::size_t>(std::clamp(place, 0.0, Bins - 1.0))];
        ++bin.count;
        bin.sum += sample.value;
    }
    const std::span<const Bin, Bins> all(histogram);
    const Levels levels{ModeOf(all.first<Bins / 2>()), ModeOf(all.last<Bins / 2>())};
    if (levels.top <= 0 || levels.top < LeastRatio * levels.base) return std::nullopt;
    return levels;
}

// The instant between two samples at which a straight line between them has the level.
double Crossing(const Sample& a, const Sample& b, double level) {
    return a.time + (level - a.value) / (b.value - a.value) * (b.time - a.time);
}

// The last crossing of the level between two samples of different states. What has the level
// belongs to the nearer state.
double LastCrossing(const std::vector<Sample>& samples, std::size_t begin, std::size_t end,
                    const Levels& levels, double part) {
    const double level = levels.At(part);
    const auto above = [&](const Sample& sample) {
        return part == Low ? sample.value > level : sample.value >= level;
    };
    std::size_t i = end;
    while (i > begin + 1 && above(samples[i - 1]) == above(samples[i])) --i;
    return Crossing(samples[i - 1], samples[i], level);
}

// From the last value in one state to the first one in the other.
std::vector<Edge> FindEdges(const std::vector<Sample>& samples, const Levels& levels) {
    std::vector<Edge> edges;
    std::optional<bool> above;  // the latest state
    std::size_t leave = 0;      // the last sample in it
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const bool isHigh = samples[i].value >= levels.At(High);
        if (!isHigh && samples[i].value > levels.At(Low)) continue;
        if (above && *above != isHigh) {
            const auto at = [&](double part) {
                return LastCrossing(samples, leave, i, levels, part);
            };
            edges.push_back({isHigh, at(Low), at(Middle), at(High)});
        }
        above = isHigh;
        leave = i;
    }
    return edges;
}

std::optional<double> Between(const Edge* first, const Edge* second) {
    if (first == nullptr || second == nullptr) return std::nullopt;
    return second->middle - first->middle;
}

const Edge* NextEdge(const std::vector<Edge>& edges, bool rises, const Edge* after) {
    const Edge* begin = after == nullptr ? edges.data() : after + 1;
    const Edge* end = edges.data() + edges.size();
    const Edge* found = std::find_if(begin, end, [&](const Edge& e) { return e.rises == rises; });
    return found == end ? nullptr : found;
}

std::optional<double> AverageIn(const std::vector<Sample>& samples, const Gate& gate) {
    double sum = 0;
    int count = 0;
    for (const Sample& sample : samples) {
        if (sample.time < gate.start || sample.time > gate.stop) continue;
        sum += sample.value;
        ++count;
    }
    if (count == 0) return std::nullopt;
    return sum / count;
}

double Overshoot(const std::vector<Sample>& samples, const Levels& levels, double from,
                 double until) {
    double most = levels.top;
    for (const Sample& sample : samples)
        if (sample.time >= from && sample.time <= until) most = std::max(most, sample.value);
    return (most - levels.top) / (levels.top - levels.base) * Percent;
}

void ReadEdges(PulseReadings& readings, const std::vector<Sample>& samples, const Levels& levels) {
    const std::vector<Edge> edges = FindEdges(samples, levels);
    if (edges.empty()) return;
    const Edge* rise = NextEdge(edges, true, nullptr);
    const Edge* fall = NextEdge(edges, false, nullptr);
    if (fall != nullptr) readings.fallTime = fall->low - fall->high;
    if (rise != nullptr) {
        const Edge* end = NextEdge(edges, false, rise);
        readings.riseTime = rise->high - rise->low;
        readings.width = Between(rise, end);
        readings.overshoot = Overshoot(samples, levels, rise->middle,
                                       end == nullptr ? samples.back().time : end->middle);
        readings.period = Between(rise, NextEdge(edges, true, rise));
    }
    if (!readings.period && fall != nullptr)
        readings.period = Between(fall, NextEdge(edges, false, fall));
    if (readings.width && readings.period && *readings.period > 0)
        readings.dutyCycle = *readings.width / *readings.period * Percent;
}

}  // namespace

PulseReadings ReadPulses(std::span<const double> traceW, double step, const Gate& gate) {
    PulseReadings readings;
    const std::vector<Sample> samples = FiniteSamples(traceW, step);
    if (samples.empty()) return readings;
    const auto [least, most] =
        std::minmax_element(samples.begin(), samples.end(),
                            [](const Sample& a, const Sample& b) { return a.value < b.value; });
    readings.peak = most->value;
    readings.average = AverageIn(samples, gate);
    const std::optional<Levels> levels = FindLevels(samples, least->value, most->value);
    if (!levels) return readings;
    readings.top = levels->top;
    readings.base = levels->base;
    if (step > 0) ReadEdges(readings, samples, *levels);
    return readings;
}

}  // namespace kelvra::measure
