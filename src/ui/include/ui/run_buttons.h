// SPDX-License-Identifier: GPL-3.0-or-later
// The Start and Stop buttons, and the sensor commands that are offered while nothing is measured.
#pragma once

#include "forms/forms.h"
#include "measure/cycle.h"
#include "measure/listener.h"

namespace kelvra::ui {

class RunButtons final : public measure::MeasurementListener {
public:
    RunButtons(forms::Forms& forms, measure::Cycle& cycle);

    void Started() override;
    void Prepared() override;
    void Stopped() override;

private:
    forms::Forms& forms_;
};

}  // namespace kelvra::ui
