// SPDX-License-Identifier: GPL-3.0-or-later
// What the trend costs: taking in a reading, compared with writing it down in a list; a day of one
// sensor in 2,000 columns, compared with one look at each of its buckets; and how much memory eight
// sensors take that have measured for a day.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "measure/trend_store.h"

namespace {

using namespace kelvra;
using namespace std::chrono_literals;
using measure::TrendColumn;
using platform::Duration;

constexpr Duration Step = 50ms;  // 20 readings a second
constexpr Duration Day = 24h;
constexpr int Columns = 2000;

std::vector<double> MakePowers() {
    std::mt19937 random(1);
    std::normal_distribution<double> level(-10, 0.3);
    std::vector<double> powers(4096);
    for (double& power : powers) power = std::pow(10, level(random) / 10 - 3);
    return powers;
}

void Fill(measure::TrendSeries& series) {
    const std::vector<double> powers = MakePowers();
    std::size_t i = 0;
    for (Duration at{}; at < Day; at += Step) series.Add(at, powers[i++ % powers.size()]);
}

void Add(benchmark::State& state) {
    const std::vector<double> powers = MakePowers();
    measure::TrendSeries series("A", 0);
    Duration at{};
    for (std::size_t i = 0; [[maybe_unused]] auto _ : state)
        series.Add(at += Step, powers[i++ % powers.size()]);
}

void AddFloor(benchmark::State& state) {
    const std::vector<double> powers = MakePowers();
    std::vector<std::pair<Duration, float>> list(measure::TrendReadings);
    Duration at{};
    for (std::size_t i = 0; [[maybe_unused]] auto _ : state) {
        list[i % list.size()] = {at += Step, static_cast<float>(powers[i % powers.size()])};
        ++i;
        benchmark::ClobberMemory();
    }
}

void QueryDay(benchmark::State& state) {
    measure::TrendSeries series("A", 0);
    Fill(series);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(series.Query({}, Day / Columns, Columns));
}

// As many buckets as the query looks at.
void QueryDayFloor(benchmark::State& state) {
    constexpr std::size_t buckets = 8640;
    const std::vector<TrendColumn> all(buckets, TrendColumn{1, 2, 1.5, 200, true});
    for ([[maybe_unused]] auto _ : state) {
        std::vector<TrendColumn> columns(Columns);
        for (std::size_t i = 0; i < all.size(); ++i) {
            TrendColumn& column = columns[i * Columns / all.size()];
            column.min = std::min(column.min, all[i].min);
            column.max = std::max(column.max, all[i].max);
            column.mean += all[i].mean * all[i].count;
            column.count += all[i].count;
        }
        benchmark::DoNotOptimize(columns);
    }
}

void DayOfEightSensors(benchmark::State& state) {
    double bytes = 0;
    for ([[maybe_unused]] auto _ : state) {
        measure::TrendStore store;
        for (const char* key : {"1", "2", "3", "4", "5", "6", "7", "8"}) Fill(store.Of(key));
        bytes = static_cast<double>(store.Bytes());
    }
    state.counters["MiB"] = bytes / (1 << 20);
}

BENCHMARK(Add);
BENCHMARK(AddFloor);
BENCHMARK(QueryDay)->Unit(benchmark::kMicrosecond);
BENCHMARK(QueryDayFloor)->Unit(benchmark::kMicrosecond);
BENCHMARK(DayOfEightSensors)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
