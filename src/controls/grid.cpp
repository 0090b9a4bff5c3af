// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/grid.h"

#include <algorithm>

namespace kelvra::controls {

Grid::Grid(Control& parent, std::string name, int rows, int columns, Access declared)
    : Control(Kind::Grid, parent, std::move(name), std::move(declared)),
      rows_(rows),
      columns_(columns),
      cells_(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns)),
      widths_(static_cast<std::size_t>(columns)),
      samples_(static_cast<std::size_t>(columns)) {}

void Grid::SetRows(int rows) {
    if (rows != rows_) Resize(rows, columns_);
}

void Grid::SetWidth(int column, int width) {
    int& stored = widths_[static_cast<std::size_t>(column)];
    if (stored == width) return;
    stored = width;
    MarkChanged();
}

void Grid::Resize(int rows, int columns) {
    std::vector<Cell> cells(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns));
    const int keptRows = std::min(rows, rows_);
    const int keptColumns = std::min(columns, columns_);
    for (int row = 0; row < keptRows; ++row) {
        const auto from = cells_.begin() + static_cast<std::ptrdiff_t>(Offset(row, 0));
        std::move(from, from + keptColumns, cells.begin() + std::ptrdiff_t{row} * columns);
    }
    cells_ = std::move(cells);
    rows_ = rows;
    columns_ = columns;
    widths_.resize(static_cast<std::size_t>(columns));
    samples_.resize(static_cast<std::size_t>(columns));
    std::erase_if(changedCells_,
                  [&](const auto& cell) { return cell.first >= rows || cell.second >= columns; });
    MarkChanged();
}

template <class Content>
void Grid::Write(int row, int column, const Content& content, const Look& look) {
    if (row < 0 || column < 0) return;
    if (row >= rows_ || column >= columns_)
        Resize(std::max(rows_, row + 1), std::max(columns_, column + 1));
    Cell& cell = cells_[Offset(row, column)];
    const bool saysElse = cell.content.Set(content);
    const bool looksElse = ChangeLook(cell, look);
    if (saysElse || looksElse) MarkCell(cell, row, column);
}

void Grid::SetCell(int row, int column, std::string_view text, const Look& look) {
    Write(row, column, text, look);
}

void Grid::SetCell(int row, int column, const util::Figure& figure, const Look& look) {
    Write(row, column, figure, look);
}

void Grid::SetLook(int row, int column, const Look& look) {
    Cell& cell = cells_[Offset(row, column)];
    if (ChangeLook(cell, look)) MarkCell(cell, row, column);
}

bool Grid::ChangeLook(Cell& cell, const Look& look) {
    const Look& own = cell.look;
    if (own.align == look.align && own.bold == look.bold && own.italic == look.italic &&
        (!look.back || own.back == look.back))
        return false;
    cell.look = {look.align, look.bold, look.italic, look.back ? look.back : own.back};
    return true;
}

void Grid::SetSample(int column, std::string_view text) {
    std::string& stored = samples_[static_cast<std::size_t>(column)];
    if (stored == text) return;
    stored = text;
    MarkChanged();
}

template <class Value, class Given>
void Grid::SetPart(int row, int column, Value Cell::*part, const Given& value) {
    Cell& cell = cells_[Offset(row, column)];
    if (cell.*part == value) return;
    cell.*part = value;
    MarkCell(cell, row, column);
}

void Grid::SetCellTooltip(int row, int column, std::string_view text) {
    SetPart(row, column, &Cell::tooltip, text);
}

void Grid::SetEditable(int row, int column, bool editable) {
    SetPart(row, column, &Cell::editable, editable);
}

void Grid::SetStale(int row, int column, bool stale) {
    SetPart(row, column, &Cell::stale, stale);
}

void Grid::SetFaulty(int row, int column, bool faulty) {
    SetPart(row, column, &Cell::faulty, faulty);
}

void Grid::SetMark(int row, int column, std::optional<bool> checked, std::string_view spoken) {
    SetPart(row, column, &Cell::checked, checked);
    SetPart(row, column, &Cell::spoken, spoken);
}

void Grid::TypeCell(int row, int column, const std::string& text) {
    if (At(row, column).editable) typed.Raise(row, column, text);
}

void Grid::EditCell(int row, int column, const std::string& text) {
    if (At(row, column).editable) editing.Raise(row, column, text);
}

void Grid::MarkCell(Cell& cell, int row, int column) {
    if (cell.changed) return;
    cell.changed = true;
    changedCells_.emplace_back(row, column);
    MarkChanged();
}

std::vector<std::pair<int, int>> Grid::TakeChangedCells() {
    for (const auto& [row, column] : changedCells_) cells_[Offset(row, column)].changed = false;
    return std::exchange(changedCells_, {});
}

void SetGridCell(Grid& grid, int row, int column, std::string_view text, Align align, bool bold,
                 bool italic, std::optional<Colour> backColour) {
    grid.SetCell(row, column, text, {align, bold, italic, backColour});
}

void SetGridCell(Grid& grid, int row, int column, const util::Figure& figure, Align align,
                 bool bold, bool italic, std::optional<Colour> backColour) {
    grid.SetCell(row, column, figure, {align, bold, italic, backColour});
}

}  // namespace kelvra::controls
