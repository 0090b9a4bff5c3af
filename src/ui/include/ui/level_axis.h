// SPDX-License-Identifier: GPL-3.0-or-later
// The level axis (dBm) of a display.
#pragma once

#include "controls/graph.h"

namespace kelvra::ui {

// 70 dB that end above the highest level: the end is the level raised by whole dB, at least one,
// until it rounds to a multiple of 5.
controls::Graph::Axis AutomaticAxis(double highest);

// Gives the graph the typed axis, or an automatic one for its curve. A curve without a finite level
// leaves the automatic axis as it is.
void SetLevelAxis(controls::Graph& graph, bool automatic, const controls::Graph::Axis& typed);

}  // namespace kelvra::ui
