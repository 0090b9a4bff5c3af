// SPDX-License-Identifier: GPL-3.0-or-later
// What the system counts for this process.
#pragma once

#include <ctime>
#include <fstream>
#include <string>

namespace kelvra::benchmarks {

// Processor time of all threads in s.
inline double ProcessorTime() {
    std::timespec used{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    return static_cast<double>(used.tv_sec) + 1e-9 * static_cast<double>(used.tv_nsec);
}

// KiB of memory, by the system's name: "VmRSS" is the resident memory, "VmHWM" its maximum so far;
// 0 if the system doesn't report it.
inline long Memory(const std::string& name) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word != name + ":") continue;
        long kibibytes = 0;
        status >> kibibytes;
        return kibibytes;
    }
    return 0;
}

}  // namespace kelvra::benchmarks
