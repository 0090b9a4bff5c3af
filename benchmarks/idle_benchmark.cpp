// SPDX-License-Identifier: GPL-3.0-or-later
// What Kelvra costs when nothing happens: idle with sensors connected, in a tick of discovery, and
// while a sensor waits for its trigger. Takes a quarter of a minute and prints figures.
#include <poll.h>

#include <cstdio>

#include "console_run.h"
#include "process_figures.h"

namespace {

using namespace kelvra;
using benchmarks::ProcessorTime;
using std::chrono::duration;
using std::chrono::seconds;

constexpr int Sensors = 8;
constexpr double TickInterval = 0.5;  // s

void Wait(platform::Duration patience) {
    using std::chrono::milliseconds;
    const auto ms = std::chrono::ceil<milliseconds>(patience).count();
    ::poll(nullptr, 0, static_cast<int>(ms));
}

// Runs Kelvra for that long. The only line of input is `first`, which may be null.
void Watch(const char* what, const char* first, seconds length) {
    const auto clock = platform::NativeClock();
    platform::Duration begin{};
    double processorTime = 0;
    int lookedForInput = 0;
    int wakeUps = 0;
    const auto next = [&](platform::Duration patience) -> std::optional<std::string> {
        if (lookedForInput++ == 0 && first != nullptr) return first;
        if (begin == platform::Duration{}) {
            begin = clock->Monotonic();
            processorTime = ProcessorTime();
        }
        if (clock->Monotonic() - begin >= length) return "";
        Wait(patience);
        ++wakeUps;
        return std::nullopt;
    };
    benchmarks::ConsoleRun run(*clock, next);
    benchmarks::PlugIn<Sensors>(run.kelvra, false);
    run.Run();
    const double share =
        (ProcessorTime() - processorTime) / duration<double>(clock->Monotonic() - begin).count();
    std::printf("%s: %d wake-ups in %d s, %.3f %% of a core\n", what, wakeUps,
                static_cast<int>(length.count()), 100 * share);
}

void TimeDiscovery() {
    constexpr int ticks = 20000;
    const auto clock = platform::NativeClock();
    benchmarks::ConsoleRun run(*clock, [](platform::Duration) { return std::string(); });
    benchmarks::PlugIn<Sensors>(run.kelvra, true);
    const double begin = ProcessorTime();
    for (int tick = 0; tick < ticks; ++tick) run.kelvra.discovery.Search();
    const double perTick = (ProcessorTime() - begin) / ticks;
    std::printf("discovery: %.1f us a tick over %d sensors, %.4f %% of a core\n", 1e6 * perTick,
                Sensors, 100 * perTick / TickInterval);
}

}  // namespace

int main() {
    TimeDiscovery();
    Watch("idle", nullptr, seconds(10));
    Watch("waiting for a trigger", "click StartIt", seconds(5));
    return 0;
}
