// SPDX-License-Identifier: GPL-3.0-or-later
#include "parser/literals.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "parser/constants.h"
#include "util/number_reading.h"
#include "util/text.h"

namespace kelvra::parser {

namespace {

constexpr struct {
    char letter;
    double factor;
} Prefixes[] = {
    {'p', 1e-12}, {'n', 1e-9}, {'u', 1e-6}, {'m', 1e-3}, {'c', 1e-2}, {'d', 1e-1},
    {'D', 1e1},   {'H', 1e2},  {'K', 1e3},  {'M', 1e6},  {'G', 1e9},  {'T', 1e12},
};

constexpr struct {
    std::string_view name;
    double factor;
} Units[] = {
    {"s", 1},  {"Hz", 1}, {"m", 1},   {"rad", 1}, {"Rad", 1},  {"RAD", 1},
    {"S", 1},  {"V", 1},  {"A", 1},   {"W", 1},   {"F", 1},    {"bar", 1},
    {"Pa", 1}, {"Nm", 1}, {"Ohm", 1}, {"ohm", 1}, {"g", 1e-3},
};

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::optional<double> IfFinite(double value) {
    return std::isfinite(value) ? std::optional(value) : std::nullopt;
}

// Takes the prefix off the unit and gives its factor; 1 without a prefix. The H of a bare Hz
// belongs to the unit.
double TakePrefix(std::string_view& unit) {
    if (unit.size() < 2 || unit == "Hz") return 1;
    for (const auto& prefix : Prefixes) {
        if (unit.front() != prefix.letter) continue;
        unit.remove_prefix(1);
        return prefix.factor;
    }
    return 1;
}

constexpr bool IsExponentLetter(char c) {
    return c == 'E' || c == 'e' || c == 'D' || c == 'd';
}

std::string_view SkipDigits(std::string_view text) {
    while (!text.empty() && IsDigit(text.front())) text.remove_prefix(1);
    return text;
}

// Whether the text is an exponent: E or D, perhaps a sign, digits, and nothing else.
bool IsExponent(std::string_view text) {
    if (!IsExponentLetter(text.front())) return false;
    text.remove_prefix(1);
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
    return !text.empty() && SkipDigits(text).empty();
}

bool IsNumeric(std::string_view text) {
    const bool startsWithDigit = !text.empty() && IsDigit(text.front());
    if (startsWithDigit)
        while (!text.empty() && (IsDigit(text.front()) || text.front() == ','))
            text.remove_prefix(1);
    bool hasFraction = false;
    if (!text.empty() && text.front() == '.') {
        text.remove_prefix(1);
        hasFraction = !text.empty() && IsDigit(text.front());
        text = SkipDigits(text);
    }
    return (startsWithDigit || hasFraction) && (text.empty() || IsExponent(text));
}

}  // namespace

bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::optional<double> ParseUnitValue(std::string_view token) {
    const auto letter = std::find_if(token.begin(), token.end(), IsLetter);
    if (letter == token.begin() || letter == token.end()) return std::nullopt;
    const auto length = static_cast<std::size_t>(letter - token.begin());
    std::string_view unit = token.substr(length);
    const double prefix = TakePrefix(unit);
    for (const auto& row : Units)
        if (row.name == unit)
            return IfFinite(prefix * util::ReadNumber(token.substr(0, length)) * row.factor);
    return std::nullopt;
}

std::optional<double> ParseNumber(std::string_view token) {
    if (!IsNumeric(token)) return std::nullopt;
    const auto exponent = token.find_first_of("Dd");
    if (exponent == std::string_view::npos) return IfFinite(util::ReadNumber(token));
    std::string withE(token);
    withE[exponent] = 'E';
    return IfFinite(util::ReadNumber(withE));
}

std::optional<double> ParseConstant(std::string_view token) {
    if (const auto value = ParseUnitValue(token)) return value;
    if (util::EqualNoCase(token, "pi")) return Pi;
    return ParseNumber(token);
}

}  // namespace kelvra::parser
