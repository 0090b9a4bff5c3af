// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/graph.h"

namespace kelvra::controls {

void Graph::Drag(int cursor, double x, double y) {
    std::vector<Cursor> cursors = Cursors;
    Cursor& moved = cursors.at(static_cast<std::size_t>(cursor));
    moved.x = x;
    moved.y = y;
    Cursors = std::move(cursors);
    CursorChange.Raise(cursor, x, y);
}

}  // namespace kelvra::controls
