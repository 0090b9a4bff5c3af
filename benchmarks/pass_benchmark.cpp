// SPDX-License-Identifier: GPL-3.0-or-later
// What a pass costs with sensors that are complete at once: everything but the driver, in the whole
// console. The floor next to it only makes a pass's texts and puts them into strings.
#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <string>
#include <vector>

#include "console_run.h"
#include "pass_texts.h"
#include "ui/result_columns.h"
#include "util/number_text.h"

namespace {

using namespace kelvra;

// Until the rings are full and the strings have grown to their size.
constexpr int WarmUpPasses = 100;

// Seconds that the passes took.
template <int Sensors>
double MeasurePasses(benchmark::State& state, benchmark::IterationCount passes) {
    benchmarks::SleeplessClock clock;
    std::array<platform::Duration, 2> taken{};
    int step = 0;
    const auto wait = [](std::int64_t count) {
        return "wait passes " + util::TrimmedNumberText(count);
    };
    benchmarks::ConsoleRun run(clock, [&](platform::Duration) -> std::string {
        switch (step++) {
            case 0:
                return "click StartIt";
            case 1:
                return wait(WarmUpPasses);
            case 2:
                taken[0] = clock.Monotonic();
                return wait(passes);
            case 3:
                taken[1] = clock.Monotonic();
                return "click StopIt";
            default:
                return "";
        }
    });
    benchmarks::PlugIn<Sensors>(run.kelvra, true);
    const bool ran = run.Run();
    // The last sensor's spread shows that all of them were read often enough.
    const controls::Grid& table = run.kelvra.forms.statusForm.ResultGrid;
    if (!ran || table.Rows() <= Sensors || table.At(Sensors, ui::SigmaColumn).Text().empty())
        state.SkipWithError("the sensors were not read");
    return std::chrono::duration<double>(taken[1] - taken[0]).count();
}

template <int Sensors>
void Pass(benchmark::State& state) {
    while (state.KeepRunningBatch(state.max_iterations))
        state.SetIterationTime(MeasurePasses<Sensors>(state, state.max_iterations));
}

template <int Sensors>
void TextsAlone(benchmark::State& state) {
    std::vector<benchmarks::Row> rows(Sensors);
    int pass = 0;
    double power = 1e-6;
    for (auto _ : state) {
        ++pass;
        power = benchmarks::NextPower(power);
        for (benchmarks::Row& row : rows) row.Show(power, pass);
        benchmark::DoNotOptimize(rows.data());
        benchmark::ClobberMemory();
    }
}

}  // namespace

BENCHMARK(TextsAlone<2>)->Unit(benchmark::kMicrosecond);
BENCHMARK(Pass<2>)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(TextsAlone<64>)->Unit(benchmark::kMicrosecond);
BENCHMARK(Pass<64>)->UseManualTime()->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
