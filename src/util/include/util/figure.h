// SPDX-License-Identifier: GPL-3.0-or-later
// A number together with the pattern in which it is written. Readings come far faster than anyone
// reads them, so the text is made only when it is asked for.
#pragma once

#include <cstdint>
#include <string>

#include "util/number_text.h"

namespace kelvra::util {

struct Figure {
    double value = 0;
    std::string (*write)(double value, const NumberForm& form) = nullptr;
    const NumberForm* form = nullptr;  // the locale's, which outlives every figure

    std::string Text() const { return write(value, *form); }
    bool operator==(const Figure&) const = default;
};

// Patterns "0.0000E+00", "0.000" and "0".
Figure ScientificFigure(double value, const NumberForm& form);
Figure FixedFigure(double value, const NumberForm& form);
Figure CountFigure(std::int32_t count, const NumberForm& form);

}  // namespace kelvra::util
