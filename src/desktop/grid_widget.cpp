// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_widget.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/grid_painting.h"

namespace kelvra::desktop {

namespace {
constexpr int LeastZoom = -3;
constexpr int MostZoom = 12;
constexpr qreal ZoomStep = 1.15;
// Where every column must stay in sight, a column takes no more than this many characters.
constexpr int ColumnCharacters = 12;
}  // namespace

GridWidget::GridWidget(controls::Grid& grid, QWidget* parent) : QTableWidget(parent), grid_(grid) {
    fonts_.normal.setPointSizeF(font().pointSizeF());  // its own, whatever the table's becomes
    setItemDelegate(new CellDelegate(grid, this));
    auto* heading = new Heading(Qt::Horizontal, this);
    heading->onSize = [this](int column, int width) { TakeOwnWidth(column, width); };
    setHorizontalHeader(heading);
    setEditTriggers(EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(false);
    setAlternatingRowColors(false);
    setWordWrap(false);
    setFrameShape(QFrame::NoFrame);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
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

void GridWidget::ShowRowNumbers() {
    setVerticalHeader(new Heading(Qt::Vertical, this));
    verticalHeader()->setSectionsClickable(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    FitSoon();
}

void GridWidget::SetZoom(int steps) {
    const int zoom = std::clamp(steps, LeastZoom, MostZoom);
    if (zoom == zoom_) return;
    zoom_ = zoom;
    if (onFit) onFit();
}

void GridWidget::SetFitted(bool fitted) {
    if (fonts_.fitted == fitted) return;
    fonts_.fitted = fitted;
    FitSoon();
}

// Once for many changes of the size, and before the next painting.
void GridWidget::FitSoon() {
    fitsSoon_ = true;
    scheduleDelayedItemsLayout();
}

void GridWidget::doItemsLayout() {
    if (std::exchange(fitsSoon_, false) && onFit) onFit();
    QTableWidget::doItemsLayout();
}

void GridWidget::SetOwnWidths(std::map<int, int> widths) {
    if (fonts_.own == widths) return;
    fonts_.own = std::move(widths);
    if (onFit) onFit();
}

void GridWidget::TakeOwnWidth(int column, int width) {
    if (width == 0)
        fonts_.own.erase(column);
    else
        fonts_.own[column] = static_cast<int>(width / fonts_.scale);
    if (onOwnWidth) onOwnWidth();
    if (width == 0 && onFit) onFit();
}

const GridFonts& GridWidget::UpdateFonts() {
    const bool mustBeInSight = horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff;
    const auto headingOf = [&](const QFont& font) {
        return verticalHeader()->isHidden() ? 0 : TextWidth(QString::number(grid_.Rows()), font);
    };
    fonts_.scale = std::pow(ZoomStep, zoom_);
    fonts_.rowHeading = headingOf(fonts_.normal);
    if (fonts_.fitted) fonts_.scale = LargestScale(grid_, fonts_, Room());
    QFont scaled = fonts_.normal;
    scaled.setPointSizeF(scaled.pointSizeF() * fonts_.scale);
    setFont(scaled);
    const QFontMetrics metrics(scaled);
    fonts_.mostColumnWidth = mustBeInSight ? ColumnCharacters * metrics.horizontalAdvance('0') : 0;
    horizontalHeader()->setFont(fonts_.Heading());
    verticalHeader()->setFont(fonts_.normal);
    if (!verticalHeader()->isHidden()) verticalHeader()->setFixedWidth(fonts_.rowHeading);
    return fonts_;
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

// The toolkit selects the whole text, which the next key would replace.
bool GridWidget::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const bool opened = QTableWidget::edit(index, trigger, event);
    auto* editor = opened && trigger != AnyKeyPressed ? findChild<QLineEdit*>() : nullptr;
    if (editor != nullptr) editor->end(false);
    return opened;
}

bool GridWidget::Edits(int row, int column) {
    if (!grid_.At(row + 1, column).editable) return false;
    edit(model()->index(row, column), AllEditTriggers, nullptr);
    return true;
}

QSize GridWidget::sizeHint() const {
    const int frame = 2 * frameWidth();
    const int front = verticalHeader()->isHidden() ? 0 : fonts_.rowHeading;
    const int heading =
        std::max(horizontalHeader()->sizeHint().height(), horizontalHeader()->minimumHeight());
    return {front + horizontalHeader()->length() + frame,
            verticalHeader()->length() + heading + frame};
}

QString GridWidget::HeadingText(int column) const {
    const QTableWidgetItem* item = horizontalHeaderItem(column);
    return item == nullptr ? QString() : item->text().replace('\n', ' ');
}

QString GridWidget::SelectedText(bool withHeadings) const {
    QString text;
    for (const QTableWidgetSelectionRange& range : selectedRanges()) {
        const auto add = [&](const std::function<QString(int column)>& cell) {
            for (int column = range.leftColumn(); column <= range.rightColumn(); ++column)
                text += (column > range.leftColumn() ? "\t" : "") + cell(column);
            text += '\n';
        };
        if (withHeadings) add([this](int column) { return HeadingText(column); });
        for (int row = range.topRow(); row <= range.bottomRow(); ++row)
            add([&](int column) {
                const QTableWidgetItem* cell = item(row, column);
                return cell == nullptr ? QString() : cell->text();
            });
    }
    return text;
}

void GridWidget::Copy(bool withHeadings) {
    if (const QString text = SelectedText(withHeadings); !text.isEmpty())
        QApplication::clipboard()->setText(text);
}

void GridWidget::keyPressEvent(QKeyEvent* event) {
    const bool editable = currentRow() >= 0 && currentColumn() >= 0 &&
                          grid_.At(currentRow() + 1, currentColumn()).editable;
    if (event->matches(QKeySequence::Copy)) {
        Copy(false);
    } else if (event->key() == Qt::Key_Delete && editable && state() != EditingState) {
        grid_.TypeCell(currentRow() + 1, currentColumn(), "");
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

void GridWidget::resizeEvent(QResizeEvent* event) {
    QTableWidget::resizeEvent(event);
    if (fonts_.fitted) FitSoon();
}

// The key that opens menus means the current cell.
void GridWidget::contextMenuEvent(QContextMenuEvent* event) {
    if (!onMenu) return;
    QModelIndex cell = currentIndex();
    QPoint place = visualRect(cell).center();
    if (event->reason() == QContextMenuEvent::Mouse) {
        place = event->pos();
        cell = indexAt(place);
        if (cell.isValid() && !selectionModel()->isSelected(cell)) setCurrentIndex(cell);
    }
    onMenu(cell.row(), cell.column(), viewport()->mapToGlobal(place));
}

}  // namespace kelvra::desktop
