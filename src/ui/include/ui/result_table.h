// SPDX-License-Identifier: GPL-3.0-or-later
// The result table: one row for each slot with the sensor's name and its latest results. A click on
// the name switches the sensor on or off, for the next Start; a press makes it the current sensor.
// status_marks.h writes the status column.
#pragma once

#include <string>

#include "forms/status_form.h"
#include "measure/listener.h"
#include "platform/computer.h"
#include "sensors/sensor_table.h"
#include "ui/reading_age.h"
#include "ui/sensor_selection.h"
#include "ui/trend_limits.h"
#include "util/number_text.h"

namespace kelvra::ui {

class ResultTable final : public measure::MeasurementListener,
                          public measure::SlotListener,
                          public measure::CommandListener {
public:
    ResultTable(forms::StatusForm& form, sensors::SensorTable& table, SensorSelection& selection,
                ReadingAge& age, TrendLimits& limits, platform::Computer& computer);

    // Heading, column widths, and a numbered row for each slot.
    void LayOut();

    // The name cell of a slot: green if the sensor is enabled, grey if not, empty if there is none.
    // Its mark and its tooltip say which sensor it is; the tooltip, when it was zeroed.
    void PaintName(int slot);
    // The name cell, and empty value cells if the sensor is absent. Also for the spare element's
    // row.
    void PaintPresence(int slot);
    // Empties the value cells; they keep their colour.
    void ClearValues(int slot);

    void Started() override;
    void ModesChanged() override;
    void SwitchedOff(int slot) override { PaintName(slot); }
    // Cells for scalar results are white, but for readings outside their limits; they are grey
    // where arrays arrive.
    void ReadingArrived(int slot) override;
    void ArrayArrived(int slot) override;
    void SensorBegins(measure::SensorCommand /*command*/, int slot, int /*number*/,
                      int /*sensors*/) override {
        PaintName(slot);
    }
    void SensorEnds(int slot) override { PaintName(slot); }

private:
    void PressCell(int row, int column);
    void ClickCell(int row, int column);
    void ExplainName(int slot, bool on);
    // "Zeroed at 14:05"
    std::string ZeroText(int slot) const;
    bool IsName(int row, int column) const;
    // Switches the slot's sensor on or off, if there is one.
    void ToggleEnabled(int slot);

    controls::Grid& grid_;
    sensors::SensorTable& table_;
    SensorSelection& selection_;
    ReadingAge& age_;
    TrendLimits& limits_;
    platform::Computer& computer_;
    const util::NumberForm& numbers_;
};

}  // namespace kelvra::ui
