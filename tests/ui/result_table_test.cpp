// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"
#include "ui/result_columns.h"

namespace kelvra::ui {

using controls::Green;
using controls::Grey;

class ResultTableTest : public testing::Test, public test::WholeKelvra {
protected:
    void Click(int row, int column) {
        program->forms.statusForm.ResultGrid.click.Raise(row, column);
    }
};

TEST_F(ResultTableTest, AClickOnAPresentSensorsNameSwitchesItAndNothingElseDoes) {
    StartWith(1);
    const std::tuple<int, int, bool> clicks[] = {
        {1, WattColumn, true}, {2, NameColumn, true},  {0, NameColumn, true},
        {9, NameColumn, true}, {-1, NameColumn, true}, {1, NameColumn, false},
        {1, NameColumn, true},
    };
    for (const auto& [row, column, enabled] : clicks) {
        Click(row, column);
        EXPECT_EQ(program->table[0].enabled, enabled) << row << column;
        EXPECT_EQ(Cell(0, NameColumn).look.back, enabled ? Green : Grey);
        EXPECT_FALSE(program->table[1].enabled);
    }
}

TEST_F(ResultTableTest, APressSelectsWithoutSwitchingAndAnUnlistedSensorLeavesNoEntrySelected) {
    StartWith(2);
    auto& grid = program->forms.statusForm.ResultGrid;
    auto& list = program->forms.setupForm.SensSelect;
    grid.mouseDown.Raise(2, NameColumn);
    EXPECT_EQ(program->table.currentSensor, 1);
    EXPECT_EQ(list.Text(), "B");
    EXPECT_EQ(program->forms.setupForm.SensLogicalName.Text(), "B");
    EXPECT_TRUE(program->table[1].enabled);
    Click(1, NameColumn);
    program->windows.lists.Refresh();
    EXPECT_EQ(list.Items(), (std::vector<controls::List::Item>{{"B", 1}}));
    grid.mouseDown.Raise(1, NameColumn);
    EXPECT_EQ(program->table.currentSensor, 0);
    EXPECT_EQ(list.Index(), -1);
}

}  // namespace kelvra::ui
