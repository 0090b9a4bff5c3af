// SPDX-License-Identifier: GPL-3.0-or-later
// How a grid is painted and edited. The colours of cells have a meaning, so a selected cell keeps
// them and gets a frame. Headings are flat.
#pragma once

#include <QHeaderView>
#include <QStyledItemDelegate>
#include <functional>

#include "controls/grid.h"

namespace kelvra::desktop {

// Paints and edits cells: the text that the user has typed goes to the record. A text that the
// record gets meanwhile does not disturb the editor.
class CellDelegate final : public QStyledItemDelegate {
public:
    CellDelegate(controls::Grid& grid, QObject* parent)
        : QStyledItemDelegate(parent), grid_(grid) {}

    // What a cell is besides a text.
    enum Role { FaultyRole = Qt::UserRole };

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    // A click does not change the mark by itself: the record's rule does.
    bool editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&,
                     const QModelIndex&) override {
        return false;
    }
    // The whole text of a cell that shows only a part, and the cell's tooltip.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    void setEditorData(QWidget*, const QModelIndex&) const override {}  // set once, at the start
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;

private:
    controls::Grid& grid_;
};

class Heading final : public QHeaderView {
public:
    Heading(Qt::Orientation orientation, QWidget* parent);

    // The user has dragged a section to this size, or wants its natural one (0).
    std::function<void(int section, int size)> onSize;

protected:
    void paintSection(QPainter* painter, const QRect& place, int section) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool held_ = false;  // by the user's mouse
};

}  // namespace kelvra::desktop
