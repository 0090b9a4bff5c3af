// SPDX-License-Identifier: GPL-3.0-or-later
#include "words.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace kelvra::virtual_sensors {
namespace {

constexpr std::string_view Spaces = " \t\r\v\f";

// The whole word as a number, or nothing.
template <class T>
std::optional<T> Convert(const std::string& word) {
    T value{};
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, value);
    if (error != std::errc() || stop != end) return std::nullopt;
    return value;
}

}  // namespace

Words::Words(std::string_view line) {
    std::size_t at = 0;
    while ((at = line.find_first_not_of(Spaces, at)) != std::string_view::npos) {
        if (line[at] == '#') break;
        if (line[at] == '"') {
            const std::size_t close = line.find('"', at + 1);
            if (close == std::string_view::npos) {
                Fail("a text without its closing quote");
                return;
            }
            words_.emplace_back(line.substr(at + 1, close - at - 1));
            at = close + 1;
        } else {
            const std::size_t end = std::min(line.find_first_of(" \t\r\v\f\"#", at), line.size());
            words_.emplace_back(line.substr(at, end - at));
            at = end;
        }
    }
}

bool Words::Take(std::string_view word) {
    if (AtEnd() || words_[next_] != word) return false;
    ++next_;
    return true;
}

std::string Words::Text(std::string_view what) {
    if (!AtEnd()) return words_[next_++];
    Fail(std::string(what) + " is missing");
    return {};
}

bool Words::FailUnless(bool inRange, std::string_view what) {
    if (!inRange) Fail(std::string(what) + " is no number or out of range");
    return inRange;
}

int64_t Words::Whole(std::string_view what, int64_t smallest, int64_t largest) {
    const std::optional<int64_t> value = Convert<int64_t>(Text(what));
    const bool good = value && *value >= smallest && *value <= largest;
    return FailUnless(good, what) ? *value : smallest;
}

double Words::Number(std::string_view what, double smallest, double largest) {
    const std::optional<double> value = Convert<double>(Text(what));
    const bool good = value && *value >= smallest && *value <= largest;
    return FailUnless(good, what) ? *value : smallest;
}

Quantity Words::Measure(std::string_view what, std::span<const Unit> units, double smallest,
                        double largest) {
    const double number =
        Number(what, std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
    if (number == 0 && AtEnd()) return {0, {}};
    const std::string name = Text("the unit of " + std::string(what));
    for (const Unit& unit : units) {
        if (unit.name != name) continue;
        const double value = number * unit.factor;
        if (!FailUnless(value >= smallest && value <= largest, what)) break;
        return {value, unit.name};
    }
    Fail("unknown unit '" + name + "' of " + std::string(what));
    return {smallest, units.front().name};
}

double Words::Reading() {
    const std::optional<double> value = Convert<double>(Text("the value"));
    return FailUnless(value.has_value(), "the value") ? *value : 0;
}

double Words::Time() {
    static constexpr Unit Units[] = {{"s", 1}, {"ms", 1e-3}, {"us", 1e-6}};
    return Measure("the time", Units, 0, 1e9).value;
}

double Words::Level(std::string_view what, std::string_view unit) {
    const Unit units[] = {{unit, 1}};
    return Measure(what, units, -300, 300).value;
}

void Words::Fail(std::string message) {
    next_ = words_.size();
    if (error_.empty()) error_ = std::move(message);
}

}  // namespace kelvra::virtual_sensors
