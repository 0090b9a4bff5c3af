// SPDX-License-Identifier: GPL-3.0-or-later
// Puts its items side by side, and into further lines where there is no more room.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace kelvra::desktop {

class FlowLayout final : public QLayout {
public:
    // In logical pixels, between items and between lines.
    FlowLayout(int gap, int lineGap) : gap_(gap), lineGap_(lineGap) {
        setContentsMargins(0, 0, 0, 0);
    }

    void addItem(QLayoutItem* item) override { items_.emplace_back(item); }
    int count() const override { return static_cast<int>(items_.size()); }
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return Place({0, 0, width, 0}, false); }
    QSize sizeHint() const override { return minimumSize(); }
    // Of the largest item.
    QSize minimumSize() const override;
    void setGeometry(const QRect& room) override;

private:
    // The height that is needed.
    int Place(const QRect& room, bool moves) const;

    std::vector<std::unique_ptr<QLayoutItem>> items_;
    int gap_;
    int lineGap_;
};

}  // namespace kelvra::desktop
