// SPDX-License-Identifier: GPL-3.0-or-later
// The two boxes of the trend window in which the chosen sensor's limits are typed. A text that is
// no level, or limits that exclude each other, are marked and change nothing.
#pragma once

#include <functional>
#include <string>

#include "forms/trend.h"
#include "ui/trend_limits.h"

namespace kelvra::ui {

class LimitEntry {
public:
    LimitEntry(forms::TrendForm& form, TrendLimits& limits, const util::NumberForm& numbers);

    std::function<void()> onEdit;  // limits have been edited

    // Shows the limits of that sensor; without a key, none can be typed. A box in which the user is
    // typing stays as it is, unless another sensor is shown.
    void Show(const std::string& key);

private:
    void Check();
    void Store();
    std::string FaultOf(const controls::TextBox& box) const;
    std::optional<double> LevelIn(const controls::TextBox& box) const;  // nothing for an empty box

    forms::TrendForm& form_;
    TrendLimits& limits_;
    const util::NumberForm& numbers_;
    std::string key_;
};

}  // namespace kelvra::ui
