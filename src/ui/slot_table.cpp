// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/slot_table.h"

#include <cstdint>
#include <iterator>

#include "util/figure.h"
#include "util/number_text.h"

namespace kelvra::ui {

namespace {

constexpr const char* Headings[] = {"SLOT", "Power", "Max", "Min", "Mean", "Sigma"};
constexpr int NumberWidth = 660;  // twips
constexpr int ValueWidth = 900;
constexpr const char* LongestValue = "-970.000";
constexpr controls::Grid::Look Plain{};

}  // namespace

SlotTable::SlotTable(forms::Forms& forms, sensors::SensorTable& table, SettingsEdits& edits,
                     const DisplayLists& lists, SensorSelection& selection,
                     platform::Computer& computer)
    : form_(forms.timeSlotTabForm), lists_(lists), table_(table), numbers_(computer.Numbers()) {
    controls::Grid& grid = form_.TimeSlots;
    controls::Grid::Look bold;
    bold.bold = true;
    for (int column = 0; const char* heading : Headings) {
        grid.SetCell(0, column, heading, bold);
        grid.SetWidth(column, column == 0 ? NumberWidth : ValueWidth);
        if (column > 0) grid.SetSample(column, LongestValue);
        ++column;
    }
    selection.listeners.Add(*this);
    edits.listeners.Add(*this);
    forms.timeSlotDisp.Timeslot_Sensorselect.click.Connect([this] { Refresh(); });
    // These can show the window again.
    forms.mdiMain.resize.Connect([this] { Refresh(); });
    forms.mdiMain.WindowSlotTable.click.Connect([this] { Refresh(); });
    form_.ResetStat.click.Connect([this] { Reset(); });
}

void SlotTable::ArrayArrived(int slot) {
    if (slot == Slot()) Refresh();
}

void SlotTable::SettingsEdited(int slot, const sensors::SensorSettings& before) {
    if (slot == Slot() && before.TSlotCount != table_[slot].settings.TSlotCount) Refresh();
}

void SlotTable::Refresh() {
    if (!form_.visible) return;
    const int slot = Slot();
    if (slot >= 0 && table_[slot].slotStatsActive)
        Write(table_[slot]);
    else
        Clear();
}

void SlotTable::Write(const sensors::SensorEntry& entry) {
    form_.TimeSlots.SetRows(1 + static_cast<int>(entry.slotStats.size()));
    for (int row = 1; const sensors::ReadingRing& ring : entry.slotStats) WriteRow(row++, ring);
    const bool any = !entry.slotStats.empty() && entry.slotStats.front().Index() >= 0;
    form_.NumberOfSamples.caption = util::TrimmedNumberText(any ? sensors::ReadingRing::Length : 0);
}

// A slot without a reading is empty. Statistics come with the last reading of the first full ring.
void SlotTable::WriteRow(int row, const sensors::ReadingRing& ring) {
    form_.TimeSlots.SetCell(row, 0, util::CountFigure(row, numbers_), Plain);
    if (ring.Index() < 0) return ClearRow(row);
    const auto statistics = ring.Statistics().value_or(sensors::LevelStatistics{});
    const double values[] = {ring.LastLevel(), statistics.max, statistics.min, statistics.mean,
                             statistics.sigma};
    for (int column = 1; const double value : values)
        form_.TimeSlots.SetCell(row, column++, util::FixedFigure(value, numbers_), Plain);
}

void SlotTable::ClearRow(int row) {
    for (int column = 1; column < form_.TimeSlots.Columns(); ++column)
        form_.TimeSlots.SetCell(row, column, "", Plain);
}

void SlotTable::Clear() {
    for (int row = 1; row < form_.TimeSlots.Rows(); ++row) ClearRow(row);
    form_.NumberOfSamples.caption = "0";
}

// The statistics start again with the next reading.
void SlotTable::Reset() {
    const int slot = Slot();
    if (slot < 0) return;
    sensors::PrepareWorkArrays(table_, slot);
    table_[slot].slotStatsActive = false;
    Refresh();
}

}  // namespace kelvra::ui
