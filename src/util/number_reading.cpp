// SPDX-License-Identifier: GPL-3.0-or-later
#include "util/number_reading.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace kelvra::util {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t SkipDigits(std::string_view text, std::size_t position) {
    while (position < text.size() && IsDigit(text[position])) ++position;
    return position;
}

// End of "E", sign and digits at the position; the position itself if there is no exponent.
std::size_t SkipExponent(std::string_view text, std::size_t position) {
    if (position >= text.size() || (text[position] != 'E' && text[position] != 'e'))
        return position;
    std::size_t digits = position + 1;
    if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) ++digits;
    const std::size_t end = SkipDigits(text, digits);
    return end == digits ? position : end;
}

// The value of a number out of the range of double. The decimal exponent of its first significant
// digit says on which side.
double OutOfRange(std::string_view number) {
    const auto digitsEnd = std::min(number.find_first_of("Ee"), number.size());
    const std::string_view digits = number.substr(0, digitsEnd);
    const auto point = static_cast<std::int64_t>(std::min(digits.find('.'), digits.size()));
    const auto first = static_cast<std::int64_t>(digits.find_first_of("123456789"));
    std::int64_t exponent = 0;
    if (digitsEnd < number.size()) {
        std::string_view text = number.substr(digitsEnd + 1);
        const bool below = text.front() == '-';
        // An exponent that does not fit is larger than any text is long.
        exponent = ReadWholeNumber(text).value_or(below ? INT64_MIN / 2 : INT64_MAX / 2);
    }
    const double magnitude =
        point - first + exponent > 0 ? std::numeric_limits<double>::infinity() : 0;
    return number.front() == '-' ? -magnitude : magnitude;
}

template <class Int>
std::optional<Int> RoundTo(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<Int>::min() && rounded <= std::numeric_limits<Int>::max()))
        return std::nullopt;
    return static_cast<Int>(rounded);
}

}  // namespace

NumberRead ReadNumberAt(std::string_view text) {
    const auto start = text.find_first_not_of(' ');
    if (start == std::string_view::npos) return {};
    std::size_t digits = start;
    if (text[digits] == '+' || text[digits] == '-') ++digits;
    std::size_t end = SkipDigits(text, digits);
    std::size_t digitCount = end - digits;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fractionEnd = SkipDigits(text, end + 1);
        digitCount += fractionEnd - end - 1;
        end = fractionEnd;
    }
    if (digitCount == 0) return {};
    end = SkipExponent(text, end);

    const std::size_t first = text[start] == '+' ? start + 1 : start;
    const std::string_view number = text.substr(first, end - first);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) value = OutOfRange(number);
    return {value, end};
}

double ReadNumber(std::string_view text) {
    return ReadNumberAt(text).value;
}

std::optional<std::int64_t> ReadWholeNumber(std::string_view text) {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    std::int64_t value = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc{} || result.ptr != end) return std::nullopt;
    return value;
}

std::optional<std::int16_t> RoundToInt16(double value) {
    return RoundTo<std::int16_t>(value);
}
std::optional<std::int32_t> RoundToInt32(double value) {
    return RoundTo<std::int32_t>(value);
}

}  // namespace kelvra::util
