// SPDX-License-Identifier: GPL-3.0-or-later
// The level axis (dBm) of a display.
#pragma once

#include <optional>
#include <span>

#include "controls/graph.h"

namespace kelvra::ui {

// The largest of the finite levels; nothing if there is none.
std::optional<double> HighestOf(std::span<const double> levels);

// 70 dB that end above the highest level: the end is the level raised by whole dB, at least one,
// until it rounds to a multiple of 5.
controls::Graph::Axis AutomaticAxis(double highest);

}  // namespace kelvra::ui
