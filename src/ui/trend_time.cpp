// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/trend_time.h"

#include <chrono>

#include "platform/clock.h"

namespace kelvra::ui {

namespace {
// The places of IsoText.
constexpr std::size_t DateLength = 10, ClockStart = 11, ClockLength = 8, FineLength = 12;
}  // namespace

double LocalSeconds(const platform::LocalTime& time) {
    using namespace std::chrono;
    const sys_days day = year(time.year) / month(static_cast<unsigned>(time.month)) /
                         std::chrono::day(static_cast<unsigned>(time.day));
    return duration<double>(day.time_since_epoch()).count() + time.SecondsSinceMidnight();
}

std::string DayText(const platform::LocalTime& time) {
    return platform::IsoText(time).substr(0, DateLength);
}

std::string ClockText(const platform::LocalTime& time, bool milliseconds) {
    return platform::IsoText(time).substr(ClockStart, milliseconds ? FineLength : ClockLength);
}

}  // namespace kelvra::ui
