// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the result table: row 0 is the heading, followed by one row for each slot.
#pragma once

namespace kelvra::ui {

enum ResultColumn {
    NameColumn = 0,
    WattColumn = 1,
    DbmColumn = 2,
    StatusColumn = 3,
    SigmaColumn = 4,
    CountColumn = 5,
};

constexpr int RowOf(int slot) {
    return slot + 1;
}

}  // namespace kelvra::ui
