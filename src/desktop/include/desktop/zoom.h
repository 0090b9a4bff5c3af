// SPDX-License-Identifier: GPL-3.0-or-later
// Readings that can be read from the other end of the room: menu entries and keys that change the
// size of a table's font, and the sizes kept from run to run. They mean the table that has the
// focus, else the first one.
#pragma once

#include <QMenu>
#include <vector>

#include "desktop/grid_widget.h"
#include "desktop/preferences.h"

namespace kelvra::desktop {

class Zoom {
public:
    // Gives each table the size that it had in the last run.
    Zoom(Preferences& preferences, QMenu& menu, std::vector<GridWidget*> tables);

private:
    GridWidget& Meant() const;
    void Set(GridWidget& table, int steps);

    Preferences& preferences_;
    std::vector<GridWidget*> tables_;
};

}  // namespace kelvra::desktop
