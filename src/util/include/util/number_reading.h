// SPDX-License-Identifier: GPL-3.0-or-later
// Reads numbers from the texts of users and files, independently of the locale, and rounds them for
// whole-number fields. Text without a number reads as 0.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kelvra::util {

// The longest number at the start of the text: leading spaces skipped, then sign, digits, "." and
// fraction, exponent ("E" or "e"). The rest is ignored; no number reads as 0. A magnitude above the
// range of double is infinite, one below it is 0.
double ReadNumber(std::string_view text);

// The same, with how many characters at the start of the text were the number (0: none).
struct NumberRead {
    double value = 0;
    std::size_t length = 0;
};
NumberRead ReadNumberAt(std::string_view text);

// A whole number (sign, digits) that is all of the text; nothing for anything else, or out of
// range.
std::optional<std::int64_t> ReadWholeNumber(std::string_view text);

// The nearest whole number, halves to the even neighbour; nothing out of range or for NaN.
std::optional<std::int16_t> RoundToInt16(double value);
std::optional<std::int32_t> RoundToInt32(double value);

}  // namespace kelvra::util
