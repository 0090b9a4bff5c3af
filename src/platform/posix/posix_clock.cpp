// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/posix_clock.h"

#include <ctime>
#include <thread>

#include "posix/local_time.h"

namespace kelvra::platform {

LocalTime PosixClock::Now() {
    std::timespec moment{};
    ::clock_gettime(CLOCK_REALTIME, &moment);
    return LocalTimeOf(moment).value_or(LocalTime{});
}

Duration PosixClock::Monotonic() {
    std::timespec moment{};
    ::clock_gettime(CLOCK_MONOTONIC, &moment);
    return std::chrono::seconds(moment.tv_sec) + std::chrono::nanoseconds(moment.tv_nsec);
}

void PosixClock::Sleep(Duration duration) {
    std::this_thread::sleep_for(duration);
}

}  // namespace kelvra::platform
