// SPDX-License-Identifier: GPL-3.0-or-later
// The table that shows a grid, and what the user does to it: presses and clicks cells with the
// mouse, or with Enter and Space on the keyboard; where the grid lets cells be edited, these begin
// to edit, as F2 and typing do. Ctrl+C copies the selected cells, Ctrl and the wheel enlarge the
// font. Its rows are those below the grid's heading, row 0.
#pragma once

#include <QTableWidget>
#include <functional>

#include "controls/grid.h"

namespace kelvra::desktop {

class GridWidget final : public QTableWidget {
public:
    explicit GridWidget(controls::Grid& grid, QWidget* parent = nullptr);

    // Steps of the font's size, 0 is the normal one.
    void SetZoom(int steps);
    int Zoom() const { return zoom_; }
    qreal Scale() const;            // to the normal size
    std::function<void()> onFit;    // gives columns and rows the room that the font needs
    std::function<void()> onNeed;   // the table needs other room than before
    std::function<void()> onWheel;  // by the user's wheel

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
    bool Edits(int row, int column);
    void Activate(int row, int column);

    controls::Grid& grid_;
    qreal normalSize_;
    int zoom_ = 0;
    int turned_ = 0;  // of the wheel, less than a step
};

}  // namespace kelvra::desktop
