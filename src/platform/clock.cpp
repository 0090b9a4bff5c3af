// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/clock.h"

namespace kelvra::platform {

SetClock::SetClock(const LocalTime& start) {
    using namespace std::chrono;
    const year_month_day date{year{start.year}, month(static_cast<unsigned>(start.month)),
                              day(static_cast<unsigned>(start.day))};
    start_ = sys_days{date} + hours{start.hour} + minutes{start.minute} + seconds{start.second} +
             milliseconds{start.ms};
}

LocalTime SetClock::Now() {
    using namespace std::chrono;
    const auto now = start_ + floor<milliseconds>(elapsed_);
    const auto midnight = floor<days>(now);
    const year_month_day date{midnight};
    const hh_mm_ss time{floor<milliseconds>(now - midnight)};
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(time.hours().count()),
            static_cast<int>(time.minutes().count()),
            static_cast<int>(time.seconds().count()),
            static_cast<int>(time.subseconds().count())};
}

void SetClock::AdvanceTo(Duration monotonic) {
    if (monotonic > elapsed_) elapsed_ = monotonic;
}

}  // namespace kelvra::platform
