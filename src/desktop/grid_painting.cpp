// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_painting.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "desktop/cell_editor.h"
#include "desktop/common.h"
#include "desktop/grid_measures.h"
#include "desktop/qt_text.h"
#include "desktop/schemes.h"

namespace kelvra::desktop {

namespace {

constexpr int FocusFrame = 3;  // logical pixels

// Drawn inside the rectangle.
void Frame(QPainter& painter, const QRect& place, const QColor& colour, int width) {
    const int inset = width / 2;
    painter.setPen(QPen(colour, width, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(place.adjusted(inset, inset, inset - width, inset - width));
}

// A tick for on, a ring for off.
void Mark(QPainter& painter, const QRectF& place, bool on, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(colour, std::max(1.5, place.width() / 7), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto at = [&](qreal x, qreal y) {
        return place.topLeft() + QPointF(x * place.width(), y * place.height());
    };
    if (on)
        painter.drawPolyline(QPolygonF{at(0.1, 0.55), at(0.4, 0.85), at(0.9, 0.2)});
    else
        painter.drawEllipse(place.adjusted(1, 1, -1, -1));
    painter.restore();
}

void FaultCorner(QPainter& painter, const QRect& place) {
    const int side = std::max(6, place.height() / 3);
    const QPoint corner = place.topRight() + QPoint(1, 0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(PaintColour(OwnColour::Fault));
    painter.drawPolygon(QPolygon{corner, corner - QPoint(side, 0), corner + QPoint(0, side)});
}

QFont FontOf(const QStyleOptionViewItem& option, const QModelIndex& index) {
    const QVariant font = index.data(Qt::FontRole);
    return font.isValid() ? font.value<QFont>() : option.font;
}

// Where the text goes: right of the mark, if there is one.
QRect TextPlace(const QRect& cell, const QFont& font, bool marked) {
    const int mark = marked ? MarkSide(font) + CellMargin : 0;
    return cell.adjusted(CellMargin + mark, 0, -CellMargin, 0);
}

bool Marked(const QModelIndex& index) {
    return index.data(Qt::CheckStateRole).isValid();
}

QString Elided(const QString& text, const QFont& font, int width) {
    return QFontMetrics(font).elidedText(text, Qt::ElideMiddle, width);
}

}  // namespace

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    const QFont font = FontOf(option, index);
    const auto back = index.data(Qt::BackgroundRole).value<QBrush>();
    const QColor text = index.data(Qt::ForegroundRole).value<QBrush>().color();
    painter->save();
    if (back.style() != Qt::NoBrush) painter->fillRect(option.rect, back);
    const QRect place = TextPlace(option.rect, font, Marked(index));
    if (Marked(index)) {
        const int side = MarkSide(font);
        const QRect box(option.rect.left() + CellMargin, option.rect.center().y() - side / 2, side,
                        side);
        Mark(*painter, box, index.data(Qt::CheckStateRole).toInt() == Qt::Checked, text);
    }
    painter->setFont(font);
    painter->setPen(text);
    painter->drawText(place, index.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine,
                      Elided(index.data().toString(), font, place.width()));
    painter->setBrush(Qt::NoBrush);
    if (option.state.testFlag(QStyle::State_Selected))
        Frame(*painter, option.rect, PaintColour(OwnColour::Selection), 2);
    if (option.state.testFlag(QStyle::State_HasFocus))
        Frame(*painter, option.rect, TextOn(back.color()), FocusFrame);
    if (index.data(FaultyRole).toBool())
        FaultCorner(*painter, option.rect.adjusted(0, FocusFrame, -FocusFrame, 0));
    painter->restore();
}

bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QFont font = FontOf(option, index);
    const QString text = index.data().toString();
    QString help = index.data(Qt::ToolTipRole).toString();
    const int width = TextPlace(option.rect, font, Marked(index)).width();
    const bool whole = QFontMetrics(font).horizontalAdvance(text) <= width;
    if (!whole && !help.startsWith(text)) help = help.isEmpty() ? text : text + "\n\n" + help;
    QToolTip::showText(event->globalPos(), TooltipText(help), view);
    return true;
}

QWidget* CellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                    const QModelIndex& index) const {
    auto* editor = new CellEditor(grid_, index.row() + 1, index.column(), parent);
    editor->setFont(option.font);
    QPalette sheet;  // not the colour of the table's empty part
    const QColor back = PaintColour(Part::Cell, controls::White);
    sheet.setColor(QPalette::Base, back);
    sheet.setColor(QPalette::Text, TextOn(back));
    editor->setPalette(sheet);
    editor->setText(index.data(Qt::DisplayRole).toString());
    return editor;
}

void CellDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const {
    grid_.LeaveCell();
    QStyledItemDelegate::destroyEditor(editor, index);
}

// A text that was not touched is not written: the cell may say something newer by now.
void CellDelegate::setModelData(QWidget* editor, QAbstractItemModel*,
                                const QModelIndex& index) const {
    const auto* line = qobject_cast<QLineEdit*>(editor);
    if (line->isModified()) grid_.TypeCell(index.row() + 1, index.column(), Bytes(line->text()));
}

Heading::Heading(Qt::Orientation orientation, QWidget* parent) : QHeaderView(orientation, parent) {
    connect(this, &QHeaderView::sectionResized, [this](int section, int, int size) {
        if (held_ && onSize) onSize(section, size);
    });
    connect(this, &QHeaderView::sectionHandleDoubleClicked, [this](int section) {
        if (onSize) onSize(section, 0);
    });
}

void Heading::paintSection(QPainter* painter, const QRect& place, int section) const {
    const auto about = [&](int role) { return model()->headerData(section, orientation(), role); };
    const QColor back = palette().color(QPalette::Button);
    painter->save();
    painter->fillRect(place, back);
    painter->setPen(palette().color(QPalette::Mid));
    painter->drawLine(place.topRight(), place.bottomRight());
    painter->drawLine(place.bottomLeft(), place.bottomRight());
    painter->setPen(TextOn(back));
    const QVariant own = about(Qt::FontRole);
    const QFont shown = own.isValid() ? own.value<QFont>() : font();
    painter->setFont(shown);
    if (place.height() >= QFontMetrics(shown).ascent())
        painter->drawText(place, Qt::AlignCenter, about(Qt::DisplayRole).toString());
    painter->restore();
}

void Heading::mousePressEvent(QMouseEvent* event) {
    held_ = true;
    QHeaderView::mousePressEvent(event);
}

void Heading::mouseReleaseEvent(QMouseEvent* event) {
    QHeaderView::mouseReleaseEvent(event);
    held_ = false;
}

}  // namespace kelvra::desktop
