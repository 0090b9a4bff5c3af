// SPDX-License-Identifier: GPL-3.0-or-later
#include "util/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string_view>

namespace kelvra::util {

namespace {

// Room for the longest fixed-point double (309 digits before the point, 15 after it).
using Buffer = std::array<char, 344>;

constexpr int SignificantDigits = 15;

std::string_view NotFinite(double value) {
    if (std::isnan(value)) return "NaN";
    return value < 0 ? "-Inf" : "Inf";
}

template <class... Form>
std::string_view Write(Buffer& buffer, double value, Form... form) {
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, form...).ptr;
    return {buffer.data(), static_cast<std::size_t>(end - buffer.data())};
}

// Sign, significant digits without trailing zeros, and the exponent of the first of them.
struct Decimal {
    bool negative = false;
    std::string digits;
    int exponent = 0;
};

Decimal Split(double value, int significant) {
    Buffer buffer;
    std::string_view text = Write(buffer, value, std::chars_format::scientific, significant - 1);
    Decimal decimal;
    if (text.front() == '-') {
        decimal.negative = true;
        text.remove_prefix(1);
    }
    const auto e = text.find('e');
    for (const char c : text.substr(0, e))
        if (c != '.') decimal.digits += c;
    const auto exponent = text.substr(e + (text[e + 1] == '+' ? 2 : 1));
    std::from_chars(exponent.data(), exponent.data() + exponent.size(), decimal.exponent);
    decimal.digits.erase(std::max<std::size_t>(decimal.digits.find_last_not_of('0') + 1, 1));
    if (decimal.digits == "0") decimal.negative = false;
    return decimal;
}

struct GeneralStyle {
    std::string_view point;
    std::string_view beforePoint;  // before the point of a number below 1
    int lowestFixedExponent;       // below it the "E" form is used
};

std::string ExponentText(int exponent) {
    std::string text = exponent < 0 ? "E-" : "E+";
    const int magnitude = std::abs(exponent);
    if (magnitude < 10) text += '0';
    return text + std::to_string(magnitude);
}

std::string Compose(const Decimal& decimal, const GeneralStyle& style) {
    const auto& digits = decimal.digits;
    const auto count = static_cast<int>(digits.size());
    std::string text = decimal.negative ? "-" : "";
    if (decimal.exponent < style.lowestFixedExponent || decimal.exponent >= SignificantDigits) {
        text += digits[0];
        if (count > 1) text.append(style.point).append(digits, 1);
        return text + ExponentText(decimal.exponent);
    }
    if (decimal.exponent < 0) {
        text.append(style.beforePoint).append(style.point);
        text.append(static_cast<std::size_t>(-decimal.exponent - 1), '0');
        return text + digits;
    }
    const int whole = decimal.exponent + 1;
    text.append(digits, 0, static_cast<std::size_t>(whole));
    if (count < whole) text.append(static_cast<std::size_t>(whole - count), '0');
    if (count > whole) text.append(style.point).append(digits, static_cast<std::size_t>(whole));
    return text;
}

constexpr GeneralStyle Plain{".", "", -4};

std::string WithSignPlace(std::string text) {
    return text.front() == '-' ? text : " " + text;
}

// A fixed-point text in the locale's form; a value shown as zero loses its sign.
std::string Localised(std::string_view text, const NumberForm& form) {
    if (text.front() == '-' &&
        text.substr(0, text.find('e')).find_first_not_of("-0.") == std::string_view::npos)
        text.remove_prefix(1);
    std::string shown(text);
    if (form.decimal != ".") {
        const auto point = shown.find('.');
        if (point != std::string::npos) shown.replace(point, 1, form.decimal);
    }
    return shown;
}

}  // namespace

std::string TrimmedNumberText(double value) {
    if (!std::isfinite(value)) return std::string(NotFinite(value));
    return Compose(Split(value, SignificantDigits), Plain);
}

std::string TrimmedNumberText(std::int64_t value) {
    Buffer buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return {buffer.data(), end};
}

std::string NumberText(double value) {
    return WithSignPlace(TrimmedNumberText(value));
}
std::string NumberText(std::int64_t value) {
    return WithSignPlace(TrimmedNumberText(value));
}

std::string ExactNumberText(double value) {
    if (!std::isfinite(value)) return std::string(NotFinite(value));
    for (int significant = SignificantDigits; significant < 17; ++significant) {
        Buffer buffer;
        const auto text = Write(buffer, value, std::chars_format::scientific, significant - 1);
        double back = 0;
        std::from_chars(text.data(), text.data() + text.size(), back);
        if (back == value) return Compose(Split(value, significant), Plain);
    }
    return Compose(Split(value, 17), Plain);
}

std::string ShortestNumberText(double value) {
    Buffer buffer;
    return std::string(Write(buffer, value));
}

std::string FixedText(double value, int decimals, const NumberForm& form) {
    if (!std::isfinite(value)) return std::string(NotFinite(value));
    Buffer buffer;
    return Localised(Write(buffer, value, std::chars_format::fixed, decimals), form);
}

std::string ScientificText(double value, const NumberForm& form) {
    if (!std::isfinite(value)) return std::string(NotFinite(value));
    Buffer buffer;
    std::string text = Localised(Write(buffer, value, std::chars_format::scientific, 4), form);
    const auto e = text.find('e');
    text[e] = 'E';
    return text;
}

std::string GroupedText(double value, const NumberForm& form) {
    if (!std::isfinite(value)) return std::string(NotFinite(value));
    constexpr std::size_t leastDigits = 8;
    Buffer buffer;
    std::string_view text = Write(buffer, std::abs(value), std::chars_format::fixed, 3);
    const auto point = text.find('.');
    std::string digits(text.substr(0, point));
    if (digits.size() < leastDigits) digits.insert(0, leastDigits - digits.size(), '0');
    for (std::size_t i = digits.size(); i > 3;) digits.insert(i -= 3, form.grouping);
    digits.append(form.decimal).append(text.substr(point + 1));
    return value < 0 ? "-" + digits : digits;
}

std::string GeneralText(double value, const NumberForm& form) {
    if (!std::isfinite(value)) return std::string(NotFinite(value));
    return Compose(Split(value, SignificantDigits), {form.decimal, "0", -4});
}

}  // namespace kelvra::util
