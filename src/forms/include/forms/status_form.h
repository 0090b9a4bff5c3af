// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the result table, one row a sensor slot below the heading. Start-up lays the rows
// and the other columns out; what the cells show and what a click does are rules elsewhere.
#pragma once

#include "controls/grid.h"
#include "controls/kinds.h"

namespace kelvra::forms {

struct StatusForm : controls::Window {
    // Wide enough for all columns (5000 twips) with a scroll bar and margins.
    explicit StatusForm(controls::Changes& changes)
        : Window(changes, "StatusForm", "Results", {60, 60, 5520, 4200}) {
        closesByRule = true;  // and no rule closes it: the readings stay in sight
        ResultGrid.SetWidth(0, 1200);
    }

    controls::Frame SensorFrame{*this, "SensorFrame", "", {0, 0, 5520, 4200}};
    controls::Grid ResultGrid{SensorFrame, "ResultGrid", 9, 6, {.name = "Results"}};
};

}  // namespace kelvra::forms
