// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/range.h"

#include "util/number_text.h"

namespace kelvra::controls {

std::string RangeSentence(const Range& range, std::string_view unit) {
    if (!range.Known()) return {};
    const std::string least = util::GeneralText(range.least, {});
    std::string numbers = (range.above ? "more than " : "at least ") + least;
    if (range.most != Range::Unlimited)
        numbers = least + " to " + util::GeneralText(range.most, {});
    const std::string_view of = unit.empty() ? range.counted : unit;
    if (!of.empty()) numbers.append(" ").append(of);
    return "Range: " + numbers + ".";
}

}  // namespace kelvra::controls
