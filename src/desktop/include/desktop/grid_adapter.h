// SPDX-License-Identifier: GPL-3.0-or-later
// The adapter of a grid: a table whose heading is the grid's row 0. It updates only the cells that
// have changed. The user presses and clicks cells with the mouse, or with Enter and Space on the
// keyboard; an editable cell opens its editor instead, which F2 and typing do too. Ctrl+C copies
// the selected cells, Ctrl and the wheel change the font size.
#pragma once

#include <QTableWidget>
#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "controls/grid.h"
#include "desktop/adapter.h"

namespace kelvra::desktop {

class GridWidget final : public QTableWidget {
public:
    explicit GridWidget(controls::Grid& grid, QWidget* parent = nullptr);

    // Steps of the font size; 0 is the normal size.
    void SetZoom(int steps);
    int Zoom() const { return zoom_; }
    std::function<void()> onFit;    // sizes columns and rows for the font
    std::function<void()> onNeed;   // the table's wanted size has changed
    std::function<void()> onWheel;  // the user has zoomed with the wheel

    // The maximum width of a column. In a table without a scroll bar a few characters, so that
    // every column stays visible; unlimited in others.
    int MostColumnWidth() const;

    // The size that shows all rows and columns without scrolling.
    QSize sizeHint() const override;

    // The selected cells as lines of TAB-separated texts.
    QString SelectedText() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    static bool Selects();
    bool Edits(int row, int column);
    void Activate(int row, int column);

    controls::Grid& grid_;
    qreal normalSize_;
    int zoom_ = 0;
    int turned_ = 0;  // wheel angle, less than a step
};

class GridAdapter final : public Adapter {
public:
    GridAdapter(controls::Grid& grid, GridWidget& widget);
    void Update() override;

private:
    void Shape();
    void FitColumns();
    void Need();
    void ShowCell(int row, int column);
    void ShowHeading(int column);
    void Widen(int column, const QString& text, const QFont& font);

    controls::Grid& grid_;
    GridWidget& widget_;
    // What is shown: colours of cells, heading, empty part; widths of the columns in twips.
    std::array<std::optional<controls::Colour>, 3> colours_{};
    std::vector<int> widths_;
};

}  // namespace kelvra::desktop
