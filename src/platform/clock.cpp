// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/clock.h"

#include <cstdlib>

namespace kelvra::platform {

namespace {

// At least that many digits, with zeros in front.
std::string Digits(int value, std::size_t count) {
    std::string digits = std::to_string(std::abs(value));
    if (digits.size() < count) digits.insert(0, count - digits.size(), '0');
    return digits;
}

}  // namespace

std::string IsoText(const LocalTime& time) {
    constexpr int minutesPerHour = 60;
    std::string text = Digits(time.year, 4) + "-" + Digits(time.month, 2) + "-";
    text.append(Digits(time.day, 2)).append("T").append(Digits(time.hour, 2)).append(":");
    text.append(Digits(time.minute, 2)).append(":").append(Digits(time.second, 2)).append(".");
    text.append(Digits(time.ms, 3)).append(time.utcOffset < 0 ? "-" : "+");
    text.append(Digits(time.utcOffset / minutesPerHour, 2)).append(":");
    return text.append(Digits(time.utcOffset % minutesPerHour, 2));
}

SetClock::SetClock(const LocalTime& start) {
    using namespace std::chrono;
    const year_month_day date{year{start.year}, month(static_cast<unsigned>(start.month)),
                              day(static_cast<unsigned>(start.day))};
    start_ = sys_days{date} + hours{start.hour} + minutes{start.minute} + seconds{start.second} +
             milliseconds{start.ms};
}

LocalTime SetClock::At(Duration monotonic) {
    using namespace std::chrono;
    const auto now = start_ + floor<milliseconds>(monotonic);
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
