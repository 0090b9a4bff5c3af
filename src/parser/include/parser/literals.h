// SPDX-License-Identifier: GPL-3.0-or-later
// Operands that are values: numbers with and without a unit, and pi. Any other operand is the name
// of a variable or an error, which the compiler decides.
#pragma once

#include <optional>
#include <string_view>

namespace kelvra::parser {

// A-Z and a-z only, in every locale.
bool IsLetter(char c);

// A number followed by a unit, with or without a prefix: 10mV, 5KHz, 3Kg, in SI units (0.01, 5000,
// 3). Everything before the first letter is read as the number; without a digit it is 0.
std::optional<double> ParseUnitValue(std::string_view token);

// Digits with at most one ".", commas among the digits before it, an exponent with E or D; nothing
// else. Reading stops at a comma: 1,5 is 1. Nothing for a number that no double can hold.
std::optional<double> ParseNumber(std::string_view token);

// The value of an operand that is a number with a unit, pi in any case, or a number.
std::optional<double> ParseConstant(std::string_view token);

}  // namespace kelvra::parser
