// SPDX-License-Identifier: GPL-3.0-or-later
#include "util/figure.h"

namespace kelvra::util {

Figure ScientificFigure(double value, const NumberForm& form) {
    return {value, ScientificText, &form};
}

Figure FixedFigure(double value, const NumberForm& form) {
    return {value, [](double shown, const NumberForm& in) { return FixedText(shown, 3, in); },
            &form};
}

Figure CountFigure(std::int32_t count, const NumberForm& form) {
    return {static_cast<double>(count),
            [](double shown, const NumberForm& in) { return FixedText(shown, 0, in); }, &form};
}

}  // namespace kelvra::util
