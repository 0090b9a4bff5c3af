// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"
#include "ui/result_columns.h"

namespace kelvra::ui {

using controls::Green;
using controls::Grey;

class ResultTableTest : public testing::Test, public test::WholeKelvra {};

TEST_F(ResultTableTest, AClickOnAPresentSensorsNameSwitchesItAndNothingElseDoes) {
    StartWith(1);
    const struct {
        int row, column;
        bool enabled;
    } clicks[] = {
        {1, WattColumn, true}, {2, NameColumn, true},  {0, NameColumn, true},
        {9, NameColumn, true}, {-1, NameColumn, true}, {1, NameColumn, false},
        {1, NameColumn, true},
    };
    for (const auto& [row, column, enabled] : clicks) {
        program->forms.statusForm.ResultGrid.click.Raise(row, column);
        EXPECT_EQ(program->table[0].enabled, enabled) << row << column;
        EXPECT_EQ(Cell(0, NameColumn).look.back, enabled ? Green : Grey);
        EXPECT_FALSE(program->table[1].enabled);
    }
}

}  // namespace kelvra::ui
