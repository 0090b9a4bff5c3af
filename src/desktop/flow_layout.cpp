// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/flow_layout.h"

#include <algorithm>

namespace kelvra::desktop {

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (itemAt(index) == nullptr) return nullptr;
    QLayoutItem* item = items_[static_cast<std::size_t>(index)].release();
    items_.erase(items_.begin() + index);
    return item;
}

QSize FlowLayout::minimumSize() const {
    QSize size;
    for (const auto& item : items_) size = size.expandedTo(item->minimumSize());
    return size;
}

void FlowLayout::setGeometry(const QRect& room) {
    QLayout::setGeometry(room);
    Place(room, true);
}

// An item is as wide as it likes, or as the line.
int FlowLayout::Place(const QRect& room, bool moves) const {
    struct Placed {
        QLayoutItem* item;
        int x;
        QSize size;
    };
    std::vector<Placed> line;
    int x = 0, y = room.top(), height = 0;
    const auto endLine = [&] {
        for (const Placed& placed : line)
            placed.item->setGeometry(
                {{room.left() + placed.x, y + (height - placed.size.height()) / 2}, placed.size});
        line.clear();
    };
    for (const auto& item : items_) {
        if (item->isEmpty()) continue;  // hidden
        const QSize wanted = item->sizeHint();
        const QSize size(
            std::max(std::min(wanted.width(), room.width()), item->minimumSize().width()),
            wanted.height());
        if (x > 0 && x + size.width() > room.width()) {
            if (moves) endLine();
            x = 0;
            y += height + lineGap_;
            height = 0;
        }
        if (moves) line.push_back({item.get(), x, size});
        x += size.width() + gap_;
        height = std::max(height, size.height());
    }
    if (moves) endLine();
    return y + height - room.top();
}

}  // namespace kelvra::desktop
