// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_painting.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>

#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

// Drawn inside the rectangle.
void Frame(QPainter& painter, const QRect& place, const QColor& colour, int width) {
    const int inset = width / 2;
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(place.adjusted(inset, inset, inset - width, inset - width));
}

}  // namespace

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyleOptionViewItem plain = option;
    plain.state &= ~(QStyle::State_Selected | QStyle::State_HasFocus | QStyle::State_MouseOver);
    QStyledItemDelegate::paint(painter, plain, index);
    painter->save();
    if (option.state.testFlag(QStyle::State_Selected)) Frame(*painter, option.rect, Qt::blue, 2);
    if (option.state.testFlag(QStyle::State_HasFocus)) Frame(*painter, option.rect, Qt::black, 3);
    painter->restore();
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    auto* editor = new QLineEdit(index.data(Qt::DisplayRole).toString(), parent);
    editor->setFrame(false);
    editor->setFont(option.font);
    editor->setPalette(QApplication::palette());  // not the palette of the table's empty part
    editor->setAutoFillBackground(true);
    return editor;
}

// A text that the user has not touched is not written: the cell may have a newer one.
void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel*,
                                const QModelIndex& index) const {
    const auto* line = qobject_cast<QLineEdit*>(editor);
    if (line->isModified()) grid_.TypeCell(index.row() + 1, index.column(), Bytes(line->text()));
}

Heading::Heading(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

void Heading::paintSection(QPainter* painter, const QRect& place, int column) const {
    const auto about = [&](int role) { return model()->headerData(column, orientation(), role); };
    const auto back = about(Qt::BackgroundRole).value<QBrush>();
    painter->save();
    painter->fillRect(place, back.style() == Qt::NoBrush ? palette().button() : back);
    painter->setPen(palette().color(QPalette::Mid));
    painter->drawLine(place.topRight(), place.bottomRight());
    painter->drawLine(place.bottomLeft(), place.bottomRight());
    painter->setPen(Qt::black);
    const QVariant font = about(Qt::FontRole);
    if (font.isValid()) painter->setFont(font.value<QFont>());
    painter->drawText(place, about(Qt::TextAlignmentRole).toInt(),
                      about(Qt::DisplayRole).toString());
    painter->restore();
}

}  // namespace kelvra::desktop
