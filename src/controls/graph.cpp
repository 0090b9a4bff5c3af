// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/graph.h"

namespace kelvra::controls {

void Graph::Drag(int cursor, double toX, double toY) {
    std::vector<Cursor> moved = cursors;
    moved.at(static_cast<std::size_t>(cursor)).x = toX;
    moved.at(static_cast<std::size_t>(cursor)).y = toY;
    cursors = std::move(moved);
    cursorChange.Raise(cursor, toX, toY);
}

}  // namespace kelvra::controls
