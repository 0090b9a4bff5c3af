// SPDX-License-Identifier: GPL-3.0-or-later
// The text of a grid cell: a text, or a figure whose text is made when it is first read.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "util/figure.h"

namespace kelvra::controls {

class CellText {
public:
    // True if the text was a different one. Two figures count as different even if they look the
    // same.
    bool Set(std::string_view text);
    bool Set(const util::Figure& figure);

    const std::string& Get() const;
    bool IsFigure() const { return figure_.has_value(); }

private:
    std::optional<util::Figure> figure_;
    mutable std::string text_;
    mutable bool made_ = true;  // text_ is up to date
};

}  // namespace kelvra::controls
