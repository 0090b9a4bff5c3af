// SPDX-License-Identifier: GPL-3.0-or-later
// The traces that the display's trace is compared with: the largest and the smallest value of each
// point since their box was ticked, and a trace that the user has kept.
#pragma once

#include "forms/displays.h"

namespace kelvra::ui {

class HeldTraces {
public:
    explicit HeldTraces(forms::ScopeDisp& form);

    // The display has drawn a new trace. One with other points or another time axis than the held
    // ones begins them anew.
    void TraceDrawn();
    // The display shows another sensor: its extremes begin anew. The reference stays.
    void SensorChanged();

private:
    void Extend(controls::Held which, bool wanted);
    void KeepReference(controls::Graph::Plot curve);

    forms::ScopeDisp& form_;
};

}  // namespace kelvra::ui
