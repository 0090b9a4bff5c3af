// SPDX-License-Identifier: GPL-3.0-or-later
// What the cycle tells the windows around it.
#pragma once

namespace kelvra::measure {

class MeasurementView {
public:
    virtual ~MeasurementView() = default;

    // Which displays are wanted (traceModeActive, timeSlotModeActive) has been decided anew.
    virtual void ModesChanged() = 0;
};

}  // namespace kelvra::measure
