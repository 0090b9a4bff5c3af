// SPDX-License-Identifier: GPL-3.0-or-later
// The keys of a graph: the arrows move the chosen cursor by a step, with Shift by ten, and Page Up
// and Page Down choose the cursor before and the one after.
#pragma once

#include <QKeyEvent>

#include "controls/graph.h"

namespace kelvra::desktop {

// False if the key means nothing here.
bool PressGraphKey(controls::Graph& graph, const QKeyEvent& event);

}  // namespace kelvra::desktop
