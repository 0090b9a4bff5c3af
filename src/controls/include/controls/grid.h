// SPDX-License-Identifier: GPL-3.0-or-later
// A grid of texts. Cells record that they have changed, so that a painter draws only those.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/cell_text.h"
#include "controls/control.h"
#include "controls/event.h"

namespace kelvra::controls {

// The numbers are the grid's own alignment codes.
enum class Align { Left = 1, Centre = 4 };

class Grid : public Control {
public:
    struct Look {
        Align align = Align::Left;
        bool bold = false;
        bool italic = false;
        std::optional<Colour> back;  // none: the grid's own colour
    };
    struct Cell {
        CellText content;
        Look look;
        std::string tooltip;
        std::string spoken;           // what a screen reader says besides the text
        std::optional<bool> checked;  // a mark that says on or off
        bool editable = false;        // the user may type into it
        bool stale = false;           // a reading that is no longer live
        bool faulty = false;          // the tooltip says what is wrong with the text
        bool changed = false;         // since the last TakeChangedCells

        const std::string& Text() const { return content.Get(); }
    };

    // What is to be said about the grid, or about the text that is being typed into a cell.
    struct Remark {
        std::string text;
        int place = -1;  // of the character at fault in the typed text, from 0; -1: none
        bool operator==(const Remark&) const = default;
    };

    // Row 0 is the heading.
    Grid(Control& parent, std::string name, int rows, int columns, Access declared = {});

    int Rows() const { return rows_; }
    int Columns() const { return columns_; }
    const Cell& At(int row, int column) const { return cells_[Offset(row, column)]; }
    // Width of a column in twips; 0 is the design's own.
    int Width(int column) const { return widths_[static_cast<std::size_t>(column)]; }

    const std::vector<int>& Widths() const { return widths_; }

    void SetRows(int rows);  // new cells are empty
    void SetWidth(int column, int width);

    // Write a cell. A row or column (from 0) beyond the last one makes the grid grow to it. A look
    // without a colour leaves the cell's colour as it is.
    void SetCell(int row, int column, std::string_view text, const Look& look);
    void SetCell(int row, int column, const util::Figure& figure, const Look& look);
    // Changes only the look of an existing cell.
    void SetLook(int row, int column, const Look& look);

    void SetCellTooltip(int row, int column, std::string_view text);
    void SetEditable(int row, int column, bool editable);
    void SetStale(int row, int column, bool stale);
    void SetFaulty(int row, int column, bool faulty);
    // `spoken` is what a screen reader says of the mark and the row.
    void SetMark(int row, int column, std::optional<bool> checked, std::string_view spoken);
    // The longest text that the column is made for; empty if that is not known.
    void SetSample(int column, std::string_view text);
    const std::string& Sample(int column) const {
        return samples_[static_cast<std::size_t>(column)];
    }

    // Mouse events: the button goes down on a cell; it goes up again, which makes a click.
    Event<int, int> mouseDown;
    Event<int, int> click;
    // The user presses a cell; a click is a press followed by ClickCell.
    void PressCell(int row, int column) { mouseDown.Raise(row, column); }
    void ClickCell(int row, int column) { click.Raise(row, column); }

    // The user has typed a text into a cell. Raises nothing if the cell is not editable. The
    // listener decides what the cell then says.
    void TypeCell(int row, int column, const std::string& text);
    Event<int, int, const std::string&> typed;

    // The user is typing into an editable cell: the text so far. Then the cell is left, with
    // TypeCell before it if the text is to be kept.
    void EditCell(int row, int column, const std::string& text);
    Event<int, int, const std::string&> editing;
    void LeaveCell() { left.Raise(); }
    Event<> left;

    Property<Remark> remark{*this, {}};

    Property<std::optional<Colour>> fixedBack{*this, std::nullopt};  // heading cells
    Property<std::optional<Colour>> emptyBack{*this, std::nullopt};  // where there are no cells

    // Row and column of each cell that has changed since the last call.
    std::vector<std::pair<int, int>> TakeChangedCells();

private:
    std::size_t Offset(int row, int column) const {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
               static_cast<std::size_t>(column);
    }
    void Resize(int rows, int columns);
    template <class Content>
    void Write(int row, int column, const Content& content, const Look& look);
    static bool ChangeLook(Cell& cell, const Look& look);
    void MarkCell(Cell& cell, int row, int column);
    // Gives a part of a cell a value, and marks the cell if that is a different one.
    template <class Value, class Given>
    void SetPart(int row, int column, Value Cell::*part, const Given& value);

    int rows_;
    int columns_;
    std::vector<Cell> cells_;
    std::vector<int> widths_;
    std::vector<std::string> samples_;
    std::vector<std::pair<int, int>> changedCells_;
};

// Grid::SetCell under its name in the system.
void SetGridCell(Grid& grid, int row, int column, std::string_view text, Align align, bool bold,
                 bool italic, std::optional<Colour> backColour = std::nullopt);
void SetGridCell(Grid& grid, int row, int column, const util::Figure& figure, Align align,
                 bool bold, bool italic, std::optional<Colour> backColour = std::nullopt);

}  // namespace kelvra::controls
