// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_adapter.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "desktop/colour_roles.h"
#include "desktop/common.h"
#include "desktop/grid_painting.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

constexpr int LeastZoom = -3;
constexpr int MostZoom = 12;
constexpr qreal ZoomStep = 1.15;
constexpr int CellMargin = 16;  // pixels, both sides of a text together

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

GridWidget::GridWidget(controls::Grid& grid, QWidget* parent)
    : QTableWidget(parent), grid_(grid), normalSize_(font().pointSizeF()) {
    setItemDelegate(new CellDelegate(grid, this));
    setHorizontalHeader(new Heading(this));
    setEditTriggers(EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(false);
    setAlternatingRowColors(false);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    connect(this, &QTableWidget::cellPressed, [this](int row, int column) {
        if (!Selects()) grid_.PressCell(row + 1, column);
    });
    connect(this, &QTableWidget::cellClicked, [this](int row, int column) {
        if (!Selects() && !Edits(row, column)) grid_.ClickCell(row + 1, column);
    });
    // The second of two quick clicks.
    connect(this, &QTableWidget::cellDoubleClicked, [this](int row, int column) {
        if (!Selects()) Activate(row, column);
    });
}

void GridWidget::SetZoom(int steps) {
    const int zoom = std::clamp(steps, LeastZoom, MostZoom);
    if (zoom == zoom_) return;
    zoom_ = zoom;
    QFont zoomed = font();
    zoomed.setPointSizeF(normalSize_ * std::pow(ZoomStep, zoom_));
    setFont(zoomed);
    horizontalHeader()->setFont(zoomed);
    if (onFit) onFit();
}

// A click with these keys only extends the selection.
bool GridWidget::Selects() {
    return (QApplication::keyboardModifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
}

void GridWidget::Activate(int row, int column) {
    if (row < 0 || column < 0) return;
    grid_.PressCell(row + 1, column);
    if (!Edits(row, column)) grid_.ClickCell(row + 1, column);
}

// Opens the editor if the record says that the cell is editable.
bool GridWidget::Edits(int row, int column) {
    if (!grid_.At(row + 1, column).editable) return false;
    edit(model()->index(row, column));
    return true;
}

int GridWidget::MostColumnWidth() const {
    if (horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff) return QWIDGETSIZE_MAX;
    constexpr int characters = 12;
    return characters * fontMetrics().horizontalAdvance('0');
}

QSize GridWidget::sizeHint() const {
    const int frame = 2 * frameWidth();
    const int heading =
        std::max(horizontalHeader()->sizeHint().height(), horizontalHeader()->minimumHeight());
    return {horizontalHeader()->length() + frame, verticalHeader()->length() + heading + frame};
}

QString GridWidget::SelectedText() const {
    QString text;
    for (const QTableWidgetSelectionRange& range : selectedRanges()) {
        for (int row = range.topRow(); row <= range.bottomRow(); ++row) {
            for (int column = range.leftColumn(); column <= range.rightColumn(); ++column) {
                if (column > range.leftColumn()) text += '\t';
                if (const QTableWidgetItem* cell = item(row, column)) text += cell->text();
            }
            text += '\n';
        }
    }
    return text;
}

void GridWidget::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        if (const QString text = SelectedText(); !text.isEmpty())
            QApplication::clipboard()->setText(text);
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
               event->key() == Qt::Key_Space) {
        Activate(currentRow(), currentColumn());
    } else {
        QTableWidget::keyPressEvent(event);
    }
}

void GridWidget::wheelEvent(QWheelEvent* event) {
    if (event->modifiers() != Qt::ControlModifier) {
        QTableWidget::wheelEvent(event);
        return;
    }
    // A fine wheel or a touchpad turns by small parts of a step.
    turned_ += event->angleDelta().y();
    const int steps = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ -= steps * QWheelEvent::DefaultDeltasPerStep;
    SetZoom(zoom_ + steps);
    if (steps != 0 && onWheel) onWheel();
    event->accept();
}

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

// Shows every cell: the first time, and whenever the grid's rows, widths or colours have changed.
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
    const qreal scale = std::pow(ZoomStep, widget_.Zoom());
    for (int column = 0; column < grid_.Columns(); ++column) {
        const int width = static_cast<int>(Pixels(grid_.Width(column)) * scale);
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

// Columns grow with their texts and don't shrink: a table whose columns jump can't be read.
void GridAdapter::Widen(int column, const QString& text, const QFont& font) {
    if (text.isEmpty()) return;
    const int needed = std::min(TextWidth(text, font), widget_.MostColumnWidth());
    if (needed <= widget_.columnWidth(column)) return;
    widget_.setColumnWidth(column, needed);
    Need();
}

}  // namespace kelvra::desktop
