// SPDX-License-Identifier: GPL-3.0-or-later
// How a grid is painted and edited. The colours of cells have a meaning, so a selected cell keeps
// them and gets a frame. Headings are flat.
#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>

#include "controls/grid.h"

namespace kelvra::desktop {

// Paints and edits cells: the text that the user has typed goes to the record. A text that the
// record gets meanwhile does not disturb the editor.
class CellDelegate final : public QStyledItemDelegate {
public:
    CellDelegate(controls::Grid& grid, QObject* parent)
        : QStyledItemDelegate(parent), grid_(grid) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget*, const QModelIndex&) const override {}  // set once, at the start
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
