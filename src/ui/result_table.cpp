// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/result_table.h"

#include <optional>
#include <string>
#include <string_view>

#include "ui/result_columns.h"
#include "util/number_text.h"
#include "util/text.h"

namespace kelvra::ui {

namespace {

using controls::Align;

constexpr ResultColumn ValueColumns[] = {WattColumn, DbmColumn, StatusColumn, SigmaColumn,
                                         CountColumn};
constexpr ResultColumn ArrayColumns[] = {WattColumn, DbmColumn, SigmaColumn, CountColumn};

// "Sensor 2, PS-106, S/N 100002", without what is not known.
std::string IdentityOf(const sensors::SensorEntry& entry, int slot, const char* noun) {
    std::string text = noun + (" " + util::TrimmedNumberText(std::int64_t{slot + 1}));
    const std::string_view type = sensors::TypeOf(entry);
    const std::string_view serial = util::SplitAtFirst(entry.sensorId, ';').after;
    if (!type.empty()) text.append(", ").append(type);
    if (!serial.empty()) text.append(", S/N ").append(serial);
    return text;
}

}  // namespace

ResultTable::ResultTable(forms::StatusForm& form, sensors::SensorTable& table,
                         SensorSelection& selection, ReadingAge& age, TrendLimits& limits,
                         platform::Computer& computer)
    : grid_(form.ResultGrid),
      table_(table),
      selection_(selection),
      age_(age),
      limits_(limits),
      computer_(computer),
      numbers_(computer.Numbers()) {
    grid_.mouseDown.Connect([this](int row, int column) { PressCell(row, column); });
    grid_.click.Connect([this](int row, int column) { ClickCell(row, column); });
}

void ResultTable::LayOut() {
    const std::string point = numbers_.decimal;
    const struct {
        ResultColumn column;
        const char* heading;
        bool bold;
        int width;           // twips; 0: as designed
        std::string sample;  // empty: names are as long as they are
        const char* tooltip;
    } columns[] = {
        {NameColumn, "Sensor", true, 0, "",
         "The sensor's name, marked while it is switched on; a click switches it"},
        {WattColumn, "Reading\r\n[W]", false, 1000, "-0" + point + "0000E+00",
         "Latest reading, in watts"},
        {DbmColumn, "Reading\r\n[dBm]", false, 900, "-000" + point + "000",
         "Level of the latest reading, in dBm"},
        {StatusColumn, "Status", false, 700, "||||||||.",
         "A bar for each measurement, up to eight; a point while the next is awaited; CONF, ZERO "
         "or "
         "TEST while the sensor gets its settings, is zeroed or tested"},
        {SigmaColumn, "Sigma\r\n[dB]", false, 700, "000" + point + "000",
         "Standard deviation of the last 30 readings, in dB"},
        {CountColumn, "AVG\r\nCount", false, 700, "65536",
         "How many measurements the latest reading is averaged over"},
    };
    grid_.SetRows(RowOf(table_.Slots()));
    for (const auto& column : columns) {
        SetGridCell(grid_, 0, column.column, column.heading, Align::Centre, column.bold, false);
        if (column.width > 0) grid_.SetWidth(column.column, column.width);
        grid_.SetSample(column.column, column.sample);
        grid_.SetCellTooltip(0, column.column, column.tooltip);
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
    ExplainName(slot, on);
}

void ResultTable::ExplainName(int slot, bool on) {
    const sensors::SensorEntry& entry = table_[slot];
    const int row = RowOf(slot);
    if (!entry.present) {
        grid_.SetMark(row, NameColumn, std::nullopt, "");
        grid_.SetCellTooltip(row, NameColumn, "");
        return;
    }
    grid_.SetMark(row, NameColumn, on, (on ? "on, " : "off, ") + IdentityOf(entry, slot, "sensor"));
    grid_.SetCellTooltip(row, NameColumn,
                         entry.logicalName + "\n" + IdentityOf(entry, slot, "Sensor") +
                             ZeroText(slot) + "\nClick to switch it " + (on ? "off" : "on") +
                             " (from the next Start).");
}

// A simulated sensor can't be zeroed.
std::string ResultTable::ZeroText(int slot) const {
    if (table_.simulationMode) return {};
    const auto at = table_.ZeroedAt(table_[slot]);
    return at ? "\nZeroed at " + computer_.TimeText(*at) : "\nNot zeroed in this run";
}

void ResultTable::PaintPresence(int slot) {
    PaintName(slot);
    if (table_[slot].present) return;
    limits_.Forget(slot);
    for (const ResultColumn column : ValueColumns)
        SetGridCell(grid_, RowOf(slot), column, "", Align::Centre, false, false, controls::Cyan);
    grid_.SetCellTooltip(RowOf(slot), StatusColumn, "");
}

void ResultTable::ClearValues(int slot) {
    limits_.Forget(slot);
    for (const ResultColumn column : ValueColumns)
        SetGridCell(grid_, RowOf(slot), column, "", Align::Centre, false, false);
}

void ResultTable::Started() {
    for (int slot = 0; slot < table_.Slots(); ++slot) {
        PaintName(slot);
        ClearValues(slot);
    }
}

// A ring of readings that has begun anew has no spread yet.
void ResultTable::ModesChanged() {
    for (int slot = 0; slot < table_.Slots(); ++slot)
        if (!table_[slot].history.Full() && !grid_.At(RowOf(slot), SigmaColumn).Text().empty())
            SetGridCell(grid_, RowOf(slot), SigmaColumn, "", Align::Left, false, false);
}

void ResultTable::ArrayArrived(int slot) {
    limits_.Forget(slot);
    for (const ResultColumn column : ArrayColumns)
        grid_.SetLook(RowOf(slot), column, {Align::Left, false, false, controls::Grey});
}

void ResultTable::ReadingArrived(int slot) {
    const sensors::SensorEntry& entry = table_[slot];
    const auto show = [&](ResultColumn column, const util::Figure& figure, Align align,
                          controls::Colour back = controls::White) {
        SetGridCell(grid_, RowOf(slot), column, figure, align, false, false, back);
    };
    const controls::Colour judged = limits_.Judge(slot);
    show(WattColumn, util::ScientificFigure(entry.lastReading, numbers_), Align::Left, judged);
    show(DbmColumn, util::FixedFigure(entry.history.LastLevel(), numbers_), Align::Left, judged);
    show(CountColumn, util::CountFigure(entry.avgCountRead, numbers_), Align::Centre);
    if (const auto sigma = entry.history.Sigma())
        show(SigmaColumn, util::FixedFigure(*sigma, numbers_), Align::Centre);
    else
        SetGridCell(grid_, RowOf(slot), SigmaColumn, "", Align::Left, false, false,
                    controls::White);
    age_.ReadingArrived(slot);
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
    selection_.TellListed();
}

}  // namespace kelvra::ui
