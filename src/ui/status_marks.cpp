// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/status_marks.h"

#include <algorithm>
#include <string_view>

#include "ui/result_columns.h"

namespace kelvra::ui {

using controls::Align;

void StatusMarks::ShowActivity(int slot, bool waiting) {
    constexpr std::string_view bars = "||||||||.";
    constexpr int longest = bars.size() - 1;
    const auto length =
        static_cast<std::size_t>(std::clamp<int>(table_[slot].waitTicks, 0, longest));
    const std::string_view text = bars.substr(longest - length, length + (waiting ? 1 : 0));
    SetGridCell(grid_, RowOf(slot), StatusColumn, text, Align::Left, true, false);
}

void StatusMarks::ShowState(int slot, std::string_view text, controls::Colour back,
                            const char* tooltip) {
    SetGridCell(grid_, RowOf(slot), StatusColumn, text, Align::Centre, true, false, back);
    grid_.SetCellTooltip(RowOf(slot), StatusColumn, tooltip);
    events_.Repaint();
}

void StatusMarks::TransferBegins(int slot) {
    ShowState(slot, "CONF", controls::Yellow, "Gets its settings");
}

void StatusMarks::SensorBegins(measure::SensorCommand command, int slot, int /*number*/,
                               int /*sensors*/) {
    const bool zero = command == measure::SensorCommand::Zero;
    ShowState(slot, zero ? "ZERO" : "TEST", controls::Orange,
              zero ? "Is being zeroed" : "Runs its self test");
}

void StatusMarks::ShowNoState(int slot) {
    ShowState(slot, "", controls::White,
              "A bar for each measurement; with a point: waiting for the next");
}

}  // namespace kelvra::ui
