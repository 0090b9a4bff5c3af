// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/posix_clock.h"

#include <ctime>
#include <thread>

#include "posix/local_time.h"

namespace kelvra::platform {

namespace {

// Goes on while the computer sleeps, where the system has such a clock.
#ifdef CLOCK_BOOTTIME
constexpr clockid_t MonotonicClock = CLOCK_BOOTTIME;
#else
constexpr clockid_t MonotonicClock = CLOCK_MONOTONIC;
#endif

Duration Read(clockid_t clock) {
    std::timespec moment{};
    ::clock_gettime(clock, &moment);
    return std::chrono::seconds(moment.tv_sec) + std::chrono::nanoseconds(moment.tv_nsec);
}

}  // namespace

LocalTime PosixClock::Now() {
    std::timespec moment{};
    ::clock_gettime(CLOCK_REALTIME, &moment);
    return LocalTimeOf(moment).value_or(LocalTime{});
}

LocalTime PosixClock::At(Duration monotonic) {
    using namespace std::chrono;
    const Duration moment = Read(CLOCK_REALTIME) - (Read(MonotonicClock) - monotonic);
    const auto whole = floor<seconds>(moment);
    std::timespec parts{};
    parts.tv_sec = whole.count();
    parts.tv_nsec = (moment - whole).count();
    return LocalTimeOf(parts).value_or(LocalTime{});
}

Duration PosixClock::Monotonic() {
    return Read(MonotonicClock);
}

void PosixClock::Sleep(Duration duration) {
    std::this_thread::sleep_for(duration);
}

}  // namespace kelvra::platform
