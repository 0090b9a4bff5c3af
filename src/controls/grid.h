// SPDX-License-Identifier: GPL-3.0-or-later
// A grid of texts. Cells remember that they have changed, so that a painter draws those alone.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/control.h"
#include "controls/event.h"

namespace kelvra::controls {

// The numbers are the grid's own alignment codes.
enum class Align { Left = 1, Centre = 4 };

class Grid : public Control {
public:
    struct Cell {
        std::string text;
        bool bold = false;
        bool italic = false;
        Align align = Align::Left;
        std::optional<Colour> back;  // none: the grid's own colour
        std::string tooltip;
        bool changed = false;  // since the last TakeChangedCells
    };

    // Row 0 is the heading.
    Grid(Control& parent, std::string name, int rows, int columns);

    int Rows() const { return rows_; }
    int Columns() const { return columns_; }
    const Cell& At(int row, int column) const { return cells_[Offset(row, column)]; }
    // Width of a column in twips; 0 is the design's own.
    int Width(int column) const { return widths_[static_cast<std::size_t>(column)]; }

    void SetRows(int rows);  // new cells are empty
    void SetWidth(int column, int width);

    // The one writer of cells. A row or column (from 0) beyond the last one makes the grid grow to
    // it. Without a colour the cell keeps its own.
    void SetCell(int row, int column, std::string_view text, Align align, bool bold, bool italic,
                 std::optional<Colour> back = std::nullopt);
    // The same for a cell that is there and keeps its text.
    void SetLook(int row, int column, Align align, bool bold, bool italic, Colour back);

    void SetCellTooltip(int row, int column, std::string_view text);

    // Notifications of the mouse: the button goes down on a cell; it is a click when it goes up
    // again.
    Event<int, int> MouseDown;
    Event<int, int> Click;

    Property<std::optional<Colour>> FixedBack{*this, std::nullopt};  // heading cells
    Property<std::optional<Colour>> EmptyBack{*this, std::nullopt};  // where there are no cells

    // Row and column of the cells that have changed since the last call.
    std::vector<std::pair<int, int>> TakeChangedCells();

private:
    std::size_t Offset(int row, int column) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column);
    }
    void Resize(int rows, int columns);
    void MarkCell(Cell& cell, int row, int column);

    int rows_;
    int columns_;
    std::vector<Cell> cells_;
    std::vector<int> widths_;
    std::vector<std::pair<int, int>> changedCells_;
};

// The system's name for Grid::SetCell.
void SetGridCell(Grid& grid, int row, int column, std::string_view text, Align align, bool bold,
                 bool italic, std::optional<Colour> backColour = std::nullopt);

}  // namespace kelvra::controls
