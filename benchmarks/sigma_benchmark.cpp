// SPDX-License-Identifier: GPL-3.0-or-later
// A reading into the ring and the spread of the last thirty, compared with the direct way:
// converting all thirty powers to levels again, then two passes over them.
#include <benchmark/benchmark.h>

#include <array>
#include <cmath>

#include "sensors/reading_ring.h"
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

}  // namespace

BENCHMARK(StraightWay);
BENCHMARK(Ring);

BENCHMARK_MAIN();
