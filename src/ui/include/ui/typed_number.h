// SPDX-License-Identifier: GPL-3.0-or-later
// A number that the user has typed into a field: with a point, with the locale's decimal comma, or
// with a unit after it. What can't be understood counts as its leading number, or as 0, and says
// why.
#pragma once

#include <string>
#include <string_view>

#include "util/number_text.h"

namespace kelvra::ui {

// What a field's number measures.
enum class Quantity { Plain, Time, Frequency };

struct TypedNumber {
    double value = 0;   // in the field's unit
    std::string fault;  // empty: all of the text was understood
};

// The unit in which a box shows its number.
struct BoxUnit {
    std::string_view name;  // as the label beside it says; empty: none
    Quantity quantity = Quantity::Plain;
    double scale = 1;  // in s or Hz
};

// The case of units does not matter. "2 ms" in a box that shows microseconds is 2000.
TypedNumber ReadTyped(std::string_view text, const BoxUnit& box, const util::NumberForm& locale);

}  // namespace kelvra::ui
