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

// `scale` is the field's unit in s or Hz: "2 ms" in a field that shows microseconds (1e-6) is 2000.
TypedNumber ReadTyped(std::string_view text, Quantity quantity, double scale,
                      const util::NumberForm& locale);

}  // namespace kelvra::ui
