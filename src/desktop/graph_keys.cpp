// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/graph_keys.h"

#include <algorithm>
#include <iterator>

namespace kelvra::desktop {

namespace {

constexpr int ManySteps = 10;

constexpr struct {
    Qt::Key key{};
    bool horizontal = false;  // moves lines of this direction
    int steps = 0;
} Moves[] = {
    {Qt::Key_Left, false, -1},
    {Qt::Key_Right, false, 1},
    {Qt::Key_Down, true, -1},
    {Qt::Key_Up, true, 1},
};

bool Exists(const controls::Graph& graph, int cursor) {
    return cursor >= 0 && cursor < graph.CursorCount();
}

// The next visible cursor in that direction; the chosen one stays if there is none.
void Choose(controls::Graph& graph, int direction) {
    int next = graph.chosen;
    if (!Exists(graph, next)) next = direction > 0 ? -1 : graph.CursorCount();
    do next += direction;
    while (Exists(graph, next) && !graph.CursorAt(next).visible);
    if (Exists(graph, next)) graph.ChooseCursor(next);
}

}  // namespace

bool PressGraphKey(controls::Graph& graph, const QKeyEvent& event) {
    if (event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown) {
        Choose(graph, event.key() == Qt::Key_PageUp ? -1 : 1);
        return true;
    }
    const auto* move = std::find_if(std::begin(Moves), std::end(Moves),
                                    [&](const auto& each) { return each.key == event.key(); });
    if (move == std::end(Moves) || !Exists(graph, graph.chosen)) return false;
    if (graph.CursorAt(graph.chosen).horizontal != move->horizontal) return false;
    const bool many = event.modifiers().testFlag(Qt::ShiftModifier);
    return graph.Nudge(move->steps * (many ? ManySteps : 1));
}

}  // namespace kelvra::desktop
