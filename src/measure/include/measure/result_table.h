// SPDX-License-Identifier: GPL-3.0-or-later
// The result table: one row a slot with the sensor's name and state and its latest results. A click
// on the name switches the sensor on or off, for the next Start; a press selects it.
#pragma once

#include <string_view>

#include "controls/grid.h"
#include "forms/forms.h"
#include "measure/sensor_selection.h"
#include "sensors/sensor_table.h"

namespace kelvra::measure {

// Columns of the result table.
enum Column {
    NameColumn = 0,
    WattColumn = 1,
    DbmColumn = 2,
    StatusColumn = 3,
    SigmaColumn = 4,
    CountColumn = 5,
};

class ResultTable {
public:
    ResultTable(forms::Forms& forms, sensors::SensorTable& table, SensorSelection& selection);

    // Heading, column widths, and a numbered row for each slot.
    void LayOut();

    // The name cell of a slot: name on green when enabled, on grey when not, empty when absent.
    void PaintName(int slot);
    // Name cell, and the value cells of an absent sensor emptied; row of the spare element too.
    void PaintPresence(int slot);
    // The value cells are emptied and keep their colour.
    void ClearValues(int slot);

    // Colours the value cells for the kind of result that comes next: scalar on white, array on
    // grey.
    void SetTableMark(int slot, bool scalar);
    void SetValue(int slot, Column column, const util::Figure& figure, controls::Align align);
    // The activity bar, with a point while the sensor is waited for.
    void ShowActivity(int slot, bool waiting);
    // What is being done with the sensor ("CONF"), on a colour; empty text on white ends it.
    void ShowState(int slot, std::string_view text, controls::Colour back);

    // Switches a present sensor on or off.
    void ToggleEnabled(int slot);

private:
    void PressCell(int row, int column);
    void ClickCell(int row, int column);
    bool IsName(int row, int column) const;

    controls::Grid& grid_;
    sensors::SensorTable& table_;
    SensorSelection& selection_;
};

}  // namespace kelvra::measure
