// SPDX-License-Identifier: GPL-3.0-or-later
// How a grid is painted and edited: cells keep their own colours, which say something, so a
// selection is a frame around them; headings are flat.
#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>

#include "controls/grid.h"

namespace kelvra::desktop {

// Paints cells, and edits them: what a person has typed goes to the record. A text that the record
// gets while a cell is edited does not disturb the editor.
class CellDelegate final : public QStyledItemDelegate {
public:
    CellDelegate(controls::Grid& grid, QObject* parent)
        : QStyledItemDelegate(parent), grid_(grid) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget*, const QModelIndex&) const override {}  // it has its text
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

private:
    controls::Grid& grid_;
};

class Heading final : public QHeaderView {
public:
    explicit Heading(QWidget* parent);

protected:
    void paintSection(QPainter* painter, const QRect& place, int column) const override;
};

}  // namespace kelvra::desktop
