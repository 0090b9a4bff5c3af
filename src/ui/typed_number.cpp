// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/typed_number.h"

#include <algorithm>

#include "util/number_reading.h"
#include "util/text.h"

namespace kelvra::ui {

namespace {

constexpr struct {
    Quantity quantity;
    std::string_view word;
    double scale;  // in s or Hz
} Units[] = {
    {Quantity::Time, "s", 1},          {Quantity::Time, "sec", 1},
    {Quantity::Time, "ms", 1e-3},      {Quantity::Time, "msec", 1e-3},
    {Quantity::Time, "\u03BCs", 1e-6}, {Quantity::Time, "us", 1e-6},
    {Quantity::Time, "\u00B5s", 1e-6}, {Quantity::Time, "ns", 1e-9},
    {Quantity::Frequency, "Hz", 1},    {Quantity::Frequency, "kHz", 1e3},
    {Quantity::Frequency, "MHz", 1e6}, {Quantity::Frequency, "GHz", 1e9},
};

// With one decimal comma and no point the comma is the point, where the locale has it so. The minus
// sign of texts is a minus.
std::string WithPoint(std::string_view text, const util::NumberForm& locale) {
    constexpr std::string_view minus = "\u2212";
    std::string read(text);
    std::replace(read.begin(), read.end(), '\t', ' ');
    read = util::TrimSpaces(read);
    if (read.starts_with(minus)) read.replace(0, minus.size(), "-");
    const bool comma = locale.decimal == ",";
    const bool clear =
        std::count(read.begin(), read.end(), ',') == 1 && read.find('.') == std::string::npos;
    if (comma && clear) std::replace(read.begin(), read.end(), ',', '.');
    return read;
}

}  // namespace

TypedNumber ReadTyped(std::string_view text, const BoxUnit& box, const util::NumberForm& locale) {
    const std::string read = WithPoint(text, locale);
    const util::NumberRead number = util::ReadNumberAt(read);
    if (number.length == 0) return {0, "This is no number; it counts as 0."};
    const std::string_view rest = util::TrimSpaces(std::string_view(read).substr(number.length));
    if (rest.empty() || util::EqualNoCase(rest, box.name)) return {number.value, {}};
    for (const auto& unit : Units)
        if (unit.quantity == box.quantity && util::EqualNoCase(unit.word, rest))
            return {number.value * unit.scale / box.scale, {}};
    return {number.value, "\"" + std::string(rest) + "\" is not understood and is left out."};
}

}  // namespace kelvra::ui
