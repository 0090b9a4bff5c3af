// SPDX-License-Identifier: GPL-3.0-or-later
// The menu that the right mouse button opens on a graph.
#pragma once

#include "controls/kinds.h"
#include "desktop/graph_widget.h"
#include "desktop/qt_dialogs.h"

namespace kelvra::desktop {

// Copies and saves the picture, shows all of a zoomed graph, and has the entries below `entries`.
void GiveGraphMenu(GraphWidget& graph, const controls::MenuItem& entries, QtDialogs& dialogs);

}  // namespace kelvra::desktop
