// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_adapter.h"

#include <QHeaderView>
#include <algorithm>

#include "desktop/colour_roles.h"
#include "desktop/common.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

constexpr int CellMargin = 16;  // pixels beside a text

Qt::Alignment ToolkitAlign(controls::Align align) {
    return Qt::AlignVCenter | (align == controls::Align::Centre ? Qt::AlignHCenter : Qt::AlignLeft);
}

QFont FontOf(const QFont& base, bool bold, bool italic) {
    QFont font = base;
    font.setBold(bold);
    font.setItalic(italic);
    return font;
}

int TextWidth(const QString& text, const QFont& font) {
    const QFontMetrics metrics(font);
    int width = 0;
    for (const QString& line : text.split('\n'))
        width = std::max(width, metrics.horizontalAdvance(line));
    return width + CellMargin;
}

QBrush Brush(const std::optional<controls::Colour>& colour) {
    return colour ? QBrush(ToolkitColour(*colour)) : QBrush();
}

}  // namespace

GridAdapter::GridAdapter(controls::Grid& grid, GridWidget& widget) : grid_(grid), widget_(widget) {
    widget_.onFit = [this] { FitColumns(); };
}

void GridAdapter::Need() {
    if (widget_.onNeed) widget_.onNeed();
}

void GridAdapter::Update() {
    const std::array colours{grid_.back.Get(), grid_.fixedBack.Get(), grid_.emptyBack.Get()};
    const auto changed = grid_.TakeChangedCells();
    if (widget_.rowCount() != grid_.Rows() - 1 || grid_.Widths() != widths_ ||
        colours != colours_) {
        colours_ = colours;
        widths_ = grid_.Widths();
        Shape();
    } else {
        for (const auto& [row, column] : changed) {
            if (row == 0)
                ShowHeading(column);
            else
                ShowCell(row, column);
        }
    }
    UpdateCommon(widget_, grid_);
}

// The first time, and whenever the grid has other rows, widths or colours: every cell is shown.
void GridAdapter::Shape() {
    widget_.setRowCount(grid_.Rows() - 1);
    widget_.setColumnCount(grid_.Columns());
    QPalette palette;
    palette.setResolveMask(0);
    if (grid_.emptyBack.Get())
        palette.setColor(QPalette::Base, ToolkitColour(*grid_.emptyBack.Get()));
    widget_.setPalette(palette);
    FitColumns();
}

void GridAdapter::FitColumns() {
    const QFontMetrics metrics(widget_.font());
    for (int column = 0; column < grid_.Columns(); ++column) {
        const int width = static_cast<int>(Pixels(grid_.Width(column)) * widget_.Scale());
        widget_.setColumnWidth(column, std::min(width, widget_.MostColumnWidth()));
        ShowHeading(column);
        for (int row = 1; row < grid_.Rows(); ++row) ShowCell(row, column);
    }
    widget_.horizontalHeader()->setMinimumHeight(
        std::max(3 * metrics.horizontalAdvance('H'), 2 * metrics.height() + CellMargin / 2));
    widget_.verticalHeader()->setDefaultSectionSize(metrics.height() + CellMargin / 2);
    for (int row = 0; row < widget_.rowCount(); ++row)
        widget_.setRowHeight(row, metrics.height() + CellMargin / 2);
    widget_.updateGeometry();
    Need();
}

void GridAdapter::ShowHeading(int column) {
    const controls::Grid::Cell& cell = grid_.At(0, column);
    auto* item = widget_.horizontalHeaderItem(column);
    if (item == nullptr) {
        item = new QTableWidgetItem;
        widget_.setHorizontalHeaderItem(column, item);
    }
    const QFont font = FontOf(widget_.font(), cell.look.bold, cell.look.italic);
    const QString text = Shown(cell.Text()).replace("\r\n", "\n");
    item->setText(text);
    item->setFont(font);
    item->setTextAlignment(ToolkitAlign(cell.look.align));
    item->setBackground(Brush(grid_.fixedBack));
    Widen(column, text, font);
}

void GridAdapter::ShowCell(int row, int column) {
    const controls::Grid::Cell& cell = grid_.At(row, column);
    QTableWidgetItem* item = widget_.item(row - 1, column);
    if (item == nullptr) {
        item = new QTableWidgetItem;
        widget_.setItem(row - 1, column, item);
    }
    const QString text = Shown(cell.Text());
    if (item->text() != text) item->setText(text);
    if (const QFont font = FontOf(widget_.font(), cell.look.bold, cell.look.italic);
        item->font() != font)
        item->setFont(font);
    item->setTextAlignment(ToolkitAlign(cell.look.align));
    const auto& back = cell.look.back ? cell.look.back : grid_.back.Get();
    if (const QBrush brush = Brush(back); item->background() != brush) {
        item->setBackground(brush);
        item->setForeground(back ? QBrush(Qt::black) : QBrush());
    }
    item->setFlags(item->flags().setFlag(Qt::ItemIsEditable, cell.editable));
    if (const QString tooltip = TooltipText(cell.tooltip); item->toolTip() != tooltip) {
        item->setToolTip(tooltip);
        item->setData(Qt::AccessibleDescriptionRole, Shown(cell.tooltip));
    }
    Widen(column, text, item->font());
}

// Columns grow with their texts and don't shrink: a table that jumps can't be read.
void GridAdapter::Widen(int column, const QString& text, const QFont& font) {
    if (text.isEmpty()) return;
    const int needed = std::min(TextWidth(text, font), widget_.MostColumnWidth());
    if (needed <= widget_.columnWidth(column)) return;
    widget_.setColumnWidth(column, needed);
    Need();
}

}  // namespace kelvra::desktop
