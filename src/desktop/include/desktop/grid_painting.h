// SPDX-License-Identifier: GPL-3.0-or-later
// How a grid is painted: cells keep their own colours, which say something, so a selection is a
// frame around them; headings are flat.
#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace kelvra::desktop {

class CellPainter final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

class Heading final : public QHeaderView {
public:
    explicit Heading(QWidget* parent);

protected:
    void paintSection(QPainter* painter, const QRect& place, int column) const override;
};

}  // namespace kelvra::desktop
