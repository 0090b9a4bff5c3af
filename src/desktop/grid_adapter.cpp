// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_adapter.h"

#include <QAccessible>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

#include "desktop/common.h"
#include "desktop/grid_painting.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

// Figures are aligned to the right: in a column all have the same pattern, so that their decimal
// points are below each other.
Qt::Alignment ToolkitAlign(const controls::Grid::Cell& cell) {
    if (cell.content.IsFigure()) return Qt::AlignVCenter | Qt::AlignRight;
    return Qt::AlignVCenter |
           (cell.look.align == controls::Align::Centre ? Qt::AlignHCenter : Qt::AlignLeft);
}

// For those who listen to the program: the cell's mark has changed.
void TellMark(GridWidget& widget, int row, int column) {
    if (!QAccessible::isActive()) return;
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&widget);
    if (table == nullptr || table->tableInterface() == nullptr) return;
    QAccessibleInterface* cell = table->tableInterface()->cellAt(row, column);
    if (cell == nullptr) return;
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent event(cell, changed);
    QAccessible::updateAccessibility(&event);
}

}  // namespace

GridAdapter::GridAdapter(controls::Grid& grid, GridWidget& widget) : grid_(grid), widget_(widget) {
    widget_.onFit = [this] { FitColumns(); };
}

GridAdapter::Form GridAdapter::FormOfGrid() const {
    Form form{grid_.Rows(),
              {grid_.back.Get(), grid_.fixedBack.Get(), grid_.emptyBack.Get()},
              grid_.Widths(),
              {},
              CurrentScheme()};
    for (int column = 0; column < grid_.Columns(); ++column)
        form.samples.push_back(grid_.Sample(column));
    return form;
}

void GridAdapter::Update() {
    const auto changed = grid_.TakeChangedCells();
    if (Form form = FormOfGrid(); form != form_) {
        form_ = std::move(form);
        Shape();
    } else {
        bool needsMore = false;
        for (const auto& [row, column] : changed) {
            if (row == 0) {
                ShowHeading(column);
            } else {
                ShowCell(row, column);
                needsMore = needsMore || NeedsMore(row, column);
            }
        }
        if (needsMore) FitColumns();
    }
    if (widget_.onRemark) widget_.onRemark(grid_.remark);
    UpdateCommon(widget_, grid_);
}

// The first time, and whenever the grid has other rows, widths or colours.
void GridAdapter::Shape() {
    widget_.setRowCount(grid_.Rows() - 1);
    widget_.setColumnCount(grid_.Columns());
    QPalette palette;
    palette.setResolveMask(0);
    if (const auto& empty = grid_.emptyBack.Get())
        palette.setColor(QPalette::Base, PaintColour(Part::Surface, *empty));
    if (const auto& heading = grid_.fixedBack.Get())
        palette.setColor(QPalette::Button, PaintColour(Part::Heading, *heading));
    widget_.setPalette(palette);
    FitColumns();
}

// Every cell is shown again: its font may be another one. Columns grow with their texts and don't
// shrink: a table that jumps can't be read.
void GridAdapter::FitColumns() {
    if (widget_.rowCount() != grid_.Rows() - 1) return;  // not shaped yet
    const qreal before = widget_.Fonts().scale;
    const GridFonts& fonts = widget_.UpdateFonts();
    GridMeasures measures = MeasureGrid(grid_, fonts);
    if (!fonts.fitted && fonts.scale == before &&
        measures_.columns.size() == measures.columns.size())
        for (std::size_t column = 0; column < measures.columns.size(); ++column)
            if (fonts.own.count(static_cast<int>(column)) == 0)
                measures.columns[column] =
                    std::max(measures.columns[column], measures_.columns[column]);
    measures_ = std::move(measures);
    if (fonts.fitted) FillRoom();
    fonts_.clear();
    for (int column = 0; column < grid_.Columns(); ++column) {
        fonts_.push_back(fonts.Of(column));
        widget_.setColumnWidth(column, measures_.columns[static_cast<std::size_t>(column)]);
    }
    widget_.horizontalHeader()->setFixedHeight(measures_.heading);
    for (int row = 0; row < widget_.rowCount(); ++row)
        widget_.setRowHeight(row, measures_.rows[static_cast<std::size_t>(row)]);
    ShowAll();
    widget_.updateGeometry();
    if (widget_.onNeed) widget_.onNeed();
}

// What is left of the width is shared out; the first column gets the odd pixels.
void GridAdapter::FillRoom() {
    const QSize needed = measures_.Size(widget_.Fonts().rowHeading);
    int left = widget_.Room().width() - needed.width();
    if (needed.height() > widget_.Room().height())
        left -= widget_.verticalScrollBar()->sizeHint().width();
    if (left <= 0) return;
    const int share = left / grid_.Columns();
    for (int& width : measures_.columns) width += share;
    measures_.columns.front() += left - share * grid_.Columns();
}

void GridAdapter::ShowAll() {
    for (int column = 0; column < grid_.Columns(); ++column) {
        ShowHeading(column);
        for (int row = 1; row < grid_.Rows(); ++row) ShowCell(row, column);
    }
}

void GridAdapter::ShowHeading(int column) {
    const controls::Grid::Cell& cell = grid_.At(0, column);
    auto* item = widget_.horizontalHeaderItem(column);
    if (item == nullptr) {
        item = new QTableWidgetItem;
        widget_.setHorizontalHeaderItem(column, item);
    }
    const QString text = Shown(cell.Text()).replace("\r\n", "\n");
    item->setText(text);
    item->setData(Qt::AccessibleTextRole, QString(text).replace('\n', ' '));
    item->setFont(CellFont(widget_.horizontalHeader()->font(), cell.look));
    item->setToolTip(TooltipText(Shown(cell.tooltip)));
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
    // A cell without a font of its own has the table's.
    if (const QFont font = CellFont(fonts_[static_cast<std::size_t>(column)], cell.look);
        !item->data(Qt::FontRole).isValid() || item->font() != font)
        item->setFont(font);
    item->setTextAlignment(ToolkitAlign(cell));
    ShowColours(*item, cell);
    ShowMark(*item, cell);
    item->setFlags(item->flags().setFlag(Qt::ItemIsEditable, cell.editable));
    item->setData(CellDelegate::FaultyRole, cell.faulty);
    if (const QString tooltip = Shown(cell.tooltip); item->toolTip() != tooltip)
        item->setToolTip(tooltip);
    const QString spoken = Shown(cell.spoken.empty() ? cell.tooltip : cell.spoken) +
                           (cell.stale ? " (no longer live)" : "");
    if (item->data(Qt::AccessibleDescriptionRole).toString() != spoken)
        item->setData(Qt::AccessibleDescriptionRole, spoken);
}

void GridAdapter::ShowColours(QTableWidgetItem& item, const controls::Grid::Cell& cell) {
    const auto& rule = cell.look.back ? cell.look.back : grid_.back.Get();
    const QColor back =
        rule ? PaintColour(Part::Cell, *rule) : widget_.palette().color(QPalette::Base);
    const QColor text = cell.stale ? StaleTextOn(back) : TextOn(back);
    if (item.background() != back) item.setBackground(back);
    if (item.foreground() != text) item.setForeground(text);
}

void GridAdapter::ShowMark(QTableWidgetItem& item, const controls::Grid::Cell& cell) {
    const QVariant state =
        cell.checked ? QVariant(*cell.checked ? Qt::Checked : Qt::Unchecked) : QVariant();
    if (item.data(Qt::CheckStateRole) == state) return;
    item.setFlags(item.flags().setFlag(Qt::ItemIsUserCheckable, cell.checked.has_value()));
    item.setData(Qt::CheckStateRole, state);
    TellMark(widget_, item.row(), item.column());
}

// The cell's text does not fit, or its row says something for the first time, or no longer.
bool GridAdapter::NeedsMore(int row, int column) const {
    if (SaysNothing(grid_, row) != measures_.silent[static_cast<std::size_t>(row - 1)]) return true;
    if (!grid_.Sample(column).empty()) return false;
    const auto place = static_cast<std::size_t>(column);
    return CellWidth(grid_.At(row, column), fonts_[place]) > measures_.columns[place] &&
           MeasureGrid(grid_, widget_.Fonts()).columns[place] > measures_.columns[place];
}

}  // namespace kelvra::desktop
