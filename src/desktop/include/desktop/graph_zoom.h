// SPDX-License-Identifier: GPL-3.0-or-later
// The part of a graph that a turn of the wheel or a drag asks for. It stays inside the whole graph.
#pragma once

#include "controls/graph.h"

namespace kelvra::desktop {

// In by so many steps, out if negative; the point stays where it is. The whole graph is no zoom.
void ZoomAround(controls::Graph& graph, double x, double y, double steps);

void ShiftPart(controls::Graph& graph, const controls::Graph::Axes& from, double x, double y);

}  // namespace kelvra::desktop
