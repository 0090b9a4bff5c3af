// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/posix_locale.h"

#include <langinfo.h>

#include <array>
#include <chrono>
#include <ctime>

#include "util/text.h"

namespace kelvra::platform {

namespace {

// With the days of the week and of the year, which a locale's date may show.
std::tm PartsOf(const LocalTime& time) {
    using namespace std::chrono;
    const sys_days date = year{time.year} / time.month / time.day;
    const sys_days newYear = year{time.year} / 1 / 1;
    std::tm parts{};
    parts.tm_year = time.year - 1900;
    parts.tm_mon = time.month - 1;
    parts.tm_mday = time.day;
    parts.tm_hour = time.hour;
    parts.tm_min = time.minute;
    parts.tm_sec = time.second;
    parts.tm_wday = static_cast<int>(weekday{date}.c_encoding());
    parts.tm_yday = static_cast<int>((date - newYear).count());
    parts.tm_isdst = -1;
    return parts;
}

}  // namespace

PosixLocale::PosixLocale(const char* name) : locale_(::newlocale(LC_ALL_MASK, name, locale_t{})) {
    if (!locale_) locale_.reset(::newlocale(LC_ALL_MASK, "C", locale_t{}));
    if (!locale_) return;
    // Texts are UTF-8; a locale of another encoding may have separators that are not valid UTF-8.
    const auto item = [&](nl_item which) {
        return util::ShownText(::nl_langinfo_l(which, locale_.get()));
    };
    const std::string unreadable = "\uFFFD";
    if (const std::string decimal = item(RADIXCHAR); !decimal.empty() && decimal != unreadable)
        numbers_.decimal = decimal;
    const std::string grouping = item(THOUSEP);
    numbers_.grouping = grouping == unreadable ? " " : grouping;
}

std::string PosixLocale::Name() const {
    return locale_ ? ::nl_langinfo_l(NL_LOCALE_NAME(LC_CTYPE), locale_.get()) : "";
}

std::string PosixLocale::Text(const char* pattern, const LocalTime& time) const {
    if (!locale_) return {};
    const std::tm parts = PartsOf(time);
    std::array<char, 256> buffer{};
    const auto length = ::strftime_l(buffer.data(), buffer.size(), pattern, &parts, locale_.get());
    return {buffer.data(), length};
}

}  // namespace kelvra::platform
