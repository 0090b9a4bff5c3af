// SPDX-License-Identifier: GPL-3.0-or-later
// A reading into the ring and the spread of the last thirty, compared with the direct way:
// converting all thirty powers to levels again, then two passes over them. And the statistics of
// many time slots.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>

#include "sensors/reading_ring.h"
#include "sensors/slot_statistics.h"
#include "util/levels.h"

namespace {

using kelvra::sensors::ReadingRing;

double NextPower(double power) {
    return power < 1e-2 ? power * 1.013 : 1e-6;
}

void Ring(benchmark::State& state) {
    ReadingRing ring;
    double power = 1e-6;
    for (auto _ : state) {
        ring.Add(power = NextPower(power));
        benchmark::DoNotOptimize(ring.Sigma());
    }
}

void StraightWay(benchmark::State& state) {
    std::array<double, ReadingRing::Length> powers{};
    std::size_t place = 0;
    double power = 1e-6;
    for (auto _ : state) {
        powers[place++ % powers.size()] = power = NextPower(power);
        std::array<double, ReadingRing::Length> levels = powers;
        kelvra::util::ArrayW2dBm(levels);
        double sum = 0;
        for (const double level : levels) sum += level;
        const double mean = sum / ReadingRing::Length;
        double squares = 0;
        for (const double level : levels) squares += (level - mean) * (level - mean);
        benchmark::DoNotOptimize(std::sqrt(squares / (ReadingRing::Length - 1)));
    }
}

// What a new set of readings of 100 time slots costs, with all that the table shows of them.
void HundredSlots(benchmark::State& state) {
    kelvra::sensors::SensorEntry entry;
    entry.settings.TSlotCount = 100;
    entry.results.assign(100, 1e-3);
    for (int i = 0; i < ReadingRing::Length; ++i) kelvra::sensors::AddSlotReadings(entry);
    double power = 1e-6;
    for (auto _ : state) {
        for (double& result : entry.results) result = power = NextPower(power);
        kelvra::sensors::AddSlotReadings(entry);
        for (const ReadingRing& ring : entry.slotStats) benchmark::DoNotOptimize(ring.Statistics());
    }
}

}  // namespace

BENCHMARK(StraightWay);
BENCHMARK(Ring);
BENCHMARK(HundredSlots);

BENCHMARK_MAIN();
