// SPDX-License-Identifier: GPL-3.0-or-later
// Readings that can be read from the other end of the room: menu entries and keys that change a
// table's font size, and the sizes kept from run to run. They act on the table that has the focus,
// else on the first one.
#pragma once

#include <QMenu>
#include <vector>

#include "desktop/grid_widget.h"
#include "desktop/preferences.h"

namespace kelvra::desktop {

class Zoom {
public:
    // Gives each table its size from the last run.
    Zoom(Preferences& preferences, QMenu& menu, std::vector<GridWidget*> tables);

private:
    GridWidget& Meant() const;
    void Set(GridWidget& table, int steps);

    Preferences& preferences_;
    std::vector<GridWidget*> tables_;
};

}  // namespace kelvra::desktop
