// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the result table: a heading, then a row for each sensor slot. Start-up lays out the
// rows and the other columns; what the cells show and what a click does are rules elsewhere.
#pragma once

#include "controls/grid.h"
#include "controls/kinds.h"

namespace kelvra::forms {

struct StatusForm : controls::Window {
    // Wide enough for all columns (5000 twips) with a scroll bar and margins.
    explicit StatusForm(controls::Changes& changes)
        : Window(changes, "StatusForm", "Results", {60, 60, 5520, 4200}) {
        closesByRule = true;  // no rule closes it: the readings stay visible
        ResultGrid.SetWidth(0, 1200);
    }

    controls::Frame SensorFrame{*this, "SensorFrame", "", {0, 0, 5520, 4200}};
    controls::Grid ResultGrid{
        SensorFrame,
        "ResultGrid",
        9,
        6,
        {.name = "Results",
         .explanation = "The latest results of each sensor. A click on a name switches that sensor "
                        "on or off, for the next Start."}};
};

}  // namespace kelvra::forms
