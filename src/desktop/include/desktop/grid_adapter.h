// SPDX-License-Identifier: GPL-3.0-or-later
// The adapter of a grid: a table whose heading is the grid's row 0. Only cells that have changed
// are touched. A person presses and clicks cells with the mouse, or with Enter and Space on the
// keyboard, copies the selected ones with Ctrl+C, and enlarges the font with Ctrl and the wheel.
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

    // Steps of the font's size, 0 is the normal one.
    void SetZoom(int steps);
    int Zoom() const { return zoom_; }
    std::function<void()> onFit;    // the font is another one: columns and rows want fitting
    std::function<void()> onWheel;  // by a person's wheel

    // The most that a column takes: some characters, so that every column of a table without a
    // scroll bar stays in sight; as much as it wants in others.
    int MostColumnWidth() const;

    // All rows and columns without scrolling.
    QSize sizeHint() const override;

    // The selected cells as lines of TAB-separated texts.
    QString SelectedText() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    static bool Selects();
    void Activate(int row, int column);

    controls::Grid& grid_;
    qreal normalSize_;
    int zoom_ = 0;
    int turned_ = 0;  // of the wheel, less than a step
};

class GridAdapter final : public Adapter {
public:
    GridAdapter(controls::Grid& grid, GridWidget& widget);
    void Update() override;

    // After a change of the font: columns and heading get the room that they need.
    void FitColumns();
    // Told when the table needs other room than before.
    std::function<void()> onNeed;

private:
    void Shape();
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
