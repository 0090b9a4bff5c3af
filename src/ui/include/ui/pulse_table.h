// SPDX-License-Identifier: GPL-3.0-or-later
// The readings of a trace's pulse, in the table beside it.
#pragma once

#include "forms/displays.h"
#include "measure/pulse.h"
#include "util/number_text.h"

namespace kelvra::ui {

class PulseTable {
public:
    PulseTable(forms::ScopeDisp& form, const util::NumberForm& numbers);

    bool Wanted() const { return form_.PulseFrame.visible; }
    // Shows "-" where there is no reading.
    void Show(const measure::PulseReadings& readings);

private:
    forms::ScopeDisp& form_;
    const util::NumberForm& numbers_;
};

}  // namespace kelvra::ui
