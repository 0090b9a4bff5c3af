// SPDX-License-Identifier: GPL-3.0-or-later
// The table that shows a grid, and what the user does to it: presses and clicks cells with the
// mouse, or with Enter and Space on the keyboard; where the grid lets cells be edited, these begin
// to edit, as F2 and typing do, and Delete empties the cell. Ctrl+C copies the selected cells, Ctrl
// and the wheel enlarge the font. Its rows are those below the grid's heading, row 0.
#pragma once

#include <QTableWidget>
#include <functional>

#include "controls/grid.h"
#include "desktop/grid_measures.h"

namespace kelvra::desktop {

class GridWidget final : public QTableWidget {
public:
    explicit GridWidget(controls::Grid& grid, QWidget* parent = nullptr);

    // Steps of the font's size, 0 is the normal one.
    void SetZoom(int steps);
    int Zoom() const { return zoom_; }
    // The largest font with which everything is in sight, instead of the zoom's.
    void SetFitted(bool fitted);
    bool Fitted() const { return fonts_.fitted; }
    // Columns that may be smaller than the others when the font is the largest that fits.
    void SetMinorColumns(std::vector<int> columns) { fonts_.minor = std::move(columns); }
    // Shows the number of each row in front of it.
    void ShowRowNumbers();
    // Widths that the user has chosen, by column, at the normal font size.
    const std::map<int, int>& OwnWidths() const { return fonts_.own; }
    void SetOwnWidths(std::map<int, int> widths);

    std::function<void()> onFit;    // gives columns and rows the room that the font needs
    std::function<void()> onNeed;   // the table needs other room than before
    std::function<void()> onWheel;  // by the user's wheel
    std::function<void()> onOwnWidth;
    std::function<void(int row, int column, const QPoint& place)> onMenu;  // -1: beside the cells
    std::function<void(const controls::Grid::Remark& remark)> onRemark;

    // For the scale that the zoom, or the room, gives. Also sets the font.
    const GridFonts& UpdateFonts();
    const GridFonts& Fonts() const { return fonts_; }
    // For headings and cells.
    QSize Room() const { return size() - QSize(2 * frameWidth(), 2 * frameWidth()); }

    controls::Grid& Record() { return grid_; }
    // Sends what the user has done to a cell; column and row count from 0 below the heading.
    void Activate(int row, int column);
    // Opens the editor where the record lets the cell be edited.
    bool Edits(int row, int column);

    void doItemsLayout() override;
    // All rows and columns without scrolling.
    QSize sizeHint() const override;

    // The selected cells as lines of TAB-separated texts, with the headings above them if wanted.
    QString SelectedText(bool withHeadings = false) const;
    void Copy(bool withHeadings);

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    static bool Selects();
    QString HeadingText(int column) const;
    void TakeOwnWidth(int column, int width);
    void FitSoon();

    controls::Grid& grid_;
    GridFonts fonts_;
    int zoom_ = 0;
    int turned_ = 0;  // of the wheel, less than a step
    bool fitsSoon_ = false;
};

}  // namespace kelvra::desktop
