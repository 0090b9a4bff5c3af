// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_widget.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "desktop/grid_painting.h"

namespace kelvra::desktop {

namespace {
constexpr int LeastZoom = -3;
constexpr int MostZoom = 12;
constexpr qreal ZoomStep = 1.15;
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
    zoomed.setPointSizeF(normalSize_ * Scale());
    setFont(zoomed);
    horizontalHeader()->setFont(zoomed);
    if (onFit) onFit();
}

qreal GridWidget::Scale() const {
    return std::pow(ZoomStep, zoom_);
}

// A click with these keys extends the selection and means nothing else.
bool GridWidget::Selects() {
    return (QApplication::keyboardModifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != 0;
}

void GridWidget::Activate(int row, int column) {
    if (row < 0 || column < 0) return;
    grid_.PressCell(row + 1, column);
    if (!Edits(row, column)) grid_.ClickCell(row + 1, column);
}

// Opens the editor where the record lets the cell be edited.
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
        if (state() != EditingState)  // the editor's Enter comes here, too
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
    // A fine wheel or a touchpad turns in small parts of a step.
    turned_ += event->angleDelta().y();
    const int steps = turned_ / QWheelEvent::DefaultDeltasPerStep;
    turned_ -= steps * QWheelEvent::DefaultDeltasPerStep;
    SetZoom(zoom_ + steps);
    if (steps != 0 && onWheel) onWheel();
    event->accept();
}

}  // namespace kelvra::desktop
