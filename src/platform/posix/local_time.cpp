// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/local_time.h"

#include <algorithm>
#include <ctime>

namespace kelvra::platform {

std::optional<LocalTime> LocalTimeOf(const std::timespec& moment) {
    std::tm parts{};
    if (::localtime_r(&moment.tv_sec, &parts) == nullptr) return std::nullopt;
    LocalTime time;
    time.year = parts.tm_year + 1900;
    time.month = parts.tm_mon + 1;
    time.day = parts.tm_mday;
    time.hour = parts.tm_hour;
    time.minute = parts.tm_min;
    time.second = std::min(parts.tm_sec, 59);  // a leap second counts as the one before it
    time.ms = static_cast<int>(moment.tv_nsec / 1'000'000);
    time.utcOffset = static_cast<int>(parts.tm_gmtoff / 60);
    return time;
}

}  // namespace kelvra::platform
