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
        EXPECT_EQ(Cell(0, NameColumn).checked, enabled);
        EXPECT_FALSE(program->table[1].enabled);
    }
}

TEST_F(ResultTableTest, TheRowSaysWhichSensorItIs) {
    StartWith(2, "PS-106");
    const struct {
        int slot;
        std::optional<bool> on;
        const char* id;
        std::string spoken, tooltip;
    } cases[] = {
        {1, true, "PS-106;2", "on, sensor 2, PS-106, S/N 2",
         "B\nSensor 2, PS-106, S/N 2\nNot zeroed in this run\nClick to switch it off (from the "
         "next Start)."},
        {1, false, ";2", "off, sensor 2, S/N 2",
         "B\nSensor 2, S/N 2\nNot zeroed in this run\nClick to switch it on (from the next "
         "Start)."},
        {0, true, "PS-106", "on, sensor 1, PS-106",
         "A\nSensor 1, PS-106\nNot zeroed in this run\nClick to switch it off (from the next "
         "Start)."},
        {2, std::nullopt, "", "", ""},
    };
    for (const auto& c : cases) {
        program->table[c.slot].sensorId = c.id;
        program->table[c.slot].enabled = c.on.value_or(false);
        program->windows.results.PaintName(c.slot);
        EXPECT_EQ(Cell(c.slot, NameColumn).checked, c.on) << c.slot;
        EXPECT_EQ(Cell(c.slot, NameColumn).spoken, c.spoken);
        EXPECT_EQ(Cell(c.slot, NameColumn).tooltip, c.tooltip);
    }
}

TEST_F(ResultTableTest, SamplesAreWrittenAsTheLocaleDoes) {
    fake.computer.numbers = {",", "."};
    StartWith(1);
    const char* samples[] = {"", "-0,0000E+00", "-000,000", "||||||||.", "000,000", "65536"};
    for (int column = NameColumn; column <= CountColumn; ++column)
        EXPECT_EQ(program->forms.statusForm.ResultGrid.Sample(column), samples[column]);
}

}  // namespace kelvra::ui
