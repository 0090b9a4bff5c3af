// SPDX-License-Identifier: GPL-3.0-or-later
// The menus that the right mouse button opens on the tables.
#pragma once

#include <QPoint>

#include "controls/kinds.h"
#include "desktop/grid_widget.h"

namespace kelvra::desktop {

// Copies, switches the row's sensor, and shows its settings by pressing `settings`.
void GiveResultMenu(GridWidget& table, controls::Button& settings);

// Copies, edits, empties a cell, takes an edit back by pressing `undo`.
void GiveFormulaMenu(GridWidget& table, controls::MenuItem& undo);

}  // namespace kelvra::desktop
