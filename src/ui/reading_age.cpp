// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/reading_age.h"

#include <algorithm>
#include <chrono>

#include "ui/result_columns.h"

namespace kelvra::ui {

namespace {

constexpr platform::Duration LeastAge = std::chrono::seconds(2);
constexpr ResultColumn ValueColumns[] = {WattColumn, DbmColumn, SigmaColumn, CountColumn};

}  // namespace

// The channels have new sensors, and no reading yet.
void ReadingAge::Started() {
    readings_.assign(static_cast<std::size_t>(table_.Slots()), {});
    ShowAll();
}

void ReadingAge::ReadingArrived(int slot) {
    if (!table_[slot].fetchError.empty()) return;
    Reading& reading = readings_[static_cast<std::size_t>(slot)];
    reading.arrived = true;
    if (!reading.stale) return;
    reading.stale = false;
    ShowState(slot);
}

void ReadingAge::Date(platform::Duration now, std::optional<platform::Duration> lasted) {
    for (Reading& reading : readings_) {
        if (!reading.arrived) continue;
        reading.arrived = false;
        reading.came = now;
        if (lasted) reading.lasted = *lasted;
    }
}

// A value that has never been good is stale from the start.
void ReadingAge::Look() {
    const platform::Duration now = clock_.Monotonic();
    readings_.resize(static_cast<std::size_t>(table_.Slots()));
    for (Reading& reading : readings_) {
        const bool old =
            !reading.came || now - *reading.came > std::max(LeastAge, 2 * reading.lasted);
        reading.stale = old && !reading.arrived;
    }
    ShowAll();
}

// The grid may have rows below the last slot.
void ReadingAge::ShowAll() {
    for (int slot = 0; RowOf(slot) < grid_.Rows(); ++slot) ShowState(slot);
}

// A cell without a text says nothing that could be old.
void ReadingAge::ShowState(int slot) {
    const bool stale = IsStale(slot);
    for (const ResultColumn column : ValueColumns) {
        const controls::CellText& content = grid_.At(RowOf(slot), column).content;
        grid_.SetStale(RowOf(slot), column,
                       stale && (content.IsFigure() || !content.Get().empty()));
    }
}

}  // namespace kelvra::ui
