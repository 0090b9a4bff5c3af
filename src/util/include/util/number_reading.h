// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers out of texts that people and files supply, without regard to the locale, and the
// rounding that brings them into whole-number fields. Never fails: there is always a number.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kelvra::util {

// The longest number at the start of the text: blanks skipped, sign, digits, "." and fraction,
// exponent ("E" or "e"); the rest is ignored, no number at all is 0. A magnitude above the range of
// double is infinite, one below it 0.
double ReadNumber(std::string_view text);

// The same, and how many characters at the start of the text were the number (0: there was none).
struct NumberRead {
    double value = 0;
    std::size_t length = 0;
};
NumberRead ReadNumberAt(std::string_view text);

// A whole number alone in the text (sign, digits), nothing if there is anything else in it or it
// leaves the range.
std::optional<std::int64_t> ReadWholeNumber(std::string_view text);

// The nearest whole number, halves to the even neighbour; nothing outside the range (or for NaN).
std::optional<std::int16_t> RoundToInt16(double value);
std::optional<std::int32_t> RoundToInt32(double value);

}  // namespace kelvra::util
