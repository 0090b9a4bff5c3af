// SPDX-License-Identifier: GPL-3.0-or-later
// Times of the trend: local time as a number, and as text with 24 hours.
#pragma once

#include <string>

#include "platform/files.h"

namespace kelvra::ui {

// Since 1970-01-01 00:00 on the same wall clock, as if every day had 24 hours.
double LocalSeconds(const platform::LocalTime& time);

// "2005-03-07"
std::string DayText(const platform::LocalTime& time);
// "09:05:30", or with milliseconds "09:05:30.250".
std::string ClockText(const platform::LocalTime& time, bool milliseconds);

}  // namespace kelvra::ui
