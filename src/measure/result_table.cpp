// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/result_table.h"

#include <algorithm>
#include <string>

#include "util/number_text.h"

namespace kelvra::measure {

namespace {

using controls::Align;

constexpr Column ValueColumns[] = {WattColumn, DbmColumn, StatusColumn, SigmaColumn, CountColumn};
constexpr Column MarkedColumns[] = {WattColumn, DbmColumn, SigmaColumn, CountColumn};

int RowOf(int slot) {
    return slot + 1;
}

}  // namespace

ResultTable::ResultTable(forms::Forms& forms, sensors::SensorTable& table,
                         SensorSelection& selection)
    : grid_(forms.statusForm.ResultGrid), table_(table), selection_(selection) {
    grid_.mouseDown.Connect([this](int row, int column) { PressCell(row, column); });
    grid_.click.Connect([this](int row, int column) { ClickCell(row, column); });
}

void ResultTable::LayOut() {
    const struct {
        Column column;
        const char* heading;
        bool bold;
        int width;  // twips; 0: as designed
    } columns[] = {
        {NameColumn, "Sensor", true, 0},
        {WattColumn, "Reading\r\n[W]", false, 1000},
        {DbmColumn, "Reading\r\n[dBm]", false, 900},
        {StatusColumn, "Status", false, 700},
        {SigmaColumn, "Sigma\r\n[dB]", false, 700},
        {CountColumn, "AVG\r\nCount", false, 700},
    };
    grid_.SetRows(RowOf(table_.Slots()));
    for (const auto& column : columns) {
        SetGridCell(grid_, 0, column.column, column.heading, Align::Centre, column.bold, false);
        if (column.width > 0) grid_.SetWidth(column.column, column.width);
    }
    for (int slot = 0; slot < table_.Slots(); ++slot)
        SetGridCell(grid_, RowOf(slot), NameColumn, util::TrimmedNumberText(std::int64_t{slot + 1}),
                    Align::Centre, true, false, controls::Grey);
}

void ResultTable::PaintName(int slot) {
    const sensors::SensorEntry& entry = table_[slot];
    const bool on = entry.present && entry.enabled;
    SetGridCell(grid_, RowOf(slot), NameColumn, entry.logicalName, Align::Centre, true, false,
                on ? controls::Green : controls::Grey);
}

void ResultTable::PaintPresence(int slot) {
    PaintName(slot);
    if (table_[slot].present) return;
    for (const Column column : ValueColumns)
        SetGridCell(grid_, RowOf(slot), column, "", Align::Centre, false, false, controls::Cyan);
}

void ResultTable::ClearValues(int slot) {
    for (const Column column : ValueColumns)
        SetGridCell(grid_, RowOf(slot), column, "", Align::Centre, false, false);
}

void ResultTable::SetTableMark(int slot, bool scalar) {
    for (const Column column : MarkedColumns)
        grid_.SetLook(RowOf(slot), column,
                      {Align::Left, false, false, scalar ? controls::White : controls::Grey});
}

void ResultTable::SetValue(int slot, Column column, const util::Figure& figure, Align align) {
    SetGridCell(grid_, RowOf(slot), column, figure, align, false, false);
}

void ResultTable::ShowActivity(int slot, bool waiting) {
    constexpr std::string_view bars = "||||||||.";
    constexpr int longest = bars.size() - 1;
    const auto length =
        static_cast<std::size_t>(std::clamp<int>(table_[slot].waitTicks, 0, longest));
    const std::string_view text = bars.substr(longest - length, length + (waiting ? 1 : 0));
    SetGridCell(grid_, RowOf(slot), StatusColumn, text, Align::Left, true, false);
}

void ResultTable::ShowState(int slot, std::string_view text, controls::Colour back) {
    SetGridCell(grid_, RowOf(slot), StatusColumn, text, Align::Centre, true, false, back);
}

void ResultTable::ToggleEnabled(int slot) {
    sensors::SensorEntry& entry = table_[slot];
    if (!entry.present) return;
    entry.enabled = !entry.enabled;
    table_.RememberSwitch(entry);
    PaintName(slot);
}

bool ResultTable::IsName(int row, int column) const {
    return column == NameColumn && row >= 1 && row <= table_.Slots();
}

void ResultTable::PressCell(int row, int column) {
    if (IsName(row, column)) selection_.Select(row - 1);
}

void ResultTable::ClickCell(int row, int column) {
    if (!IsName(row, column)) return;
    ToggleEnabled(row - 1);
    selection_.Select(row - 1);
}

}  // namespace kelvra::measure
