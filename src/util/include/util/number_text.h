// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as text. Three families: the locale-independent text of files, logs and formula
// positions; the fixed patterns of grid cells; and the locale's general form. All use
// std::to_chars; none allocates more than its result.
#pragma once

#include <concepts>
#include <cstdint>
#include <string>

namespace kelvra::util {

// How the user's locale writes numbers. Separators are texts: some locales use several bytes.
struct NumberForm {
    std::string decimal = ".";
    std::string grouping;  // between thousands; empty where the locale has none
};

// Up to 15 significant digits with a period, a space before anything not negative, no zero before
// the point (" .1"), "E" form below 1E-04 and from 1E+15 on (" 1E-05"). " NaN", " Inf" and "-Inf"
// for values that are not finite.
std::string NumberText(double value);
std::string NumberText(std::int64_t value);

// The same without the leading space.
std::string TrimmedNumberText(double value);
std::string TrimmedNumberText(std::int64_t value);
template <std::integral Whole>
std::string TrimmedNumberText(Whole value) {
    return TrimmedNumberText(static_cast<std::int64_t>(value));
}

// Like TrimmedNumberText, with as many digits (up to 17) as are needed to read the same double
// back.
std::string ExactNumberText(double value);

// The shortest decimal that reads back the same, as in JSON: "0.1", "-30", "1e-100".
std::string ShortestNumberText(double value);

// Pattern "0.000" (0 to 15 decimals): fixed point, a zero before the point, rounded by the exact
// binary value. A value that rounds to zero has no sign.
std::string FixedText(double value, int decimals, const NumberForm& form);

// Pattern "0.0000E+00": one digit, four decimals, signed exponent of at least two digits.
std::string ScientificText(double value, const NumberForm& form);

// Pattern "00,000,000.000": at least eight digits before the point, in groups of three.
std::string GroupedText(double value, const NumberForm& form);

// General form: up to 15 significant digits, a zero before the point, the locale's decimal
// separator, "E" form below 1E-04 and from 1E+15 on.
std::string GeneralText(double value, const NumberForm& form);

}  // namespace kelvra::util
