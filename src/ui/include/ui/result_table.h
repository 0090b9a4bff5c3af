// SPDX-License-Identifier: GPL-3.0-or-later
// The result table: one row for each slot with the sensor's name and its latest results. A click on
// the name switches the sensor on or off, for the next Start; a press selects it. The status column
// is elsewhere (status_marks.h).
#pragma once

#include "forms/status_form.h"
#include "measure/listener.h"
#include "sensors/sensor_table.h"
#include "ui/sensor_selection.h"
#include "util/number_text.h"

namespace kelvra::ui {

class ResultTable final : public measure::MeasurementListener, public measure::SlotListener {
public:
    ResultTable(forms::StatusForm& form, sensors::SensorTable& table, SensorSelection& selection,
                const util::NumberForm& numbers);

    // Heading, column widths, and a numbered row for each slot.
    void LayOut();

    // The name cell of a slot: name on green when enabled, on grey when not, empty when absent.
    void PaintName(int slot);
    // Name cell, and the value cells of an absent sensor emptied; row of the spare element too.
    void PaintPresence(int slot);
    // The value cells are emptied and keep their colour.
    void ClearValues(int slot);

    void Started() override;
    void SwitchedOff(int slot) override { PaintName(slot); }
    void SlotStarted(int /*slot*/) override {}
    void SlotComplete(int /*slot*/) override {}
    // Scalar results are on white, where array results come in the cells are grey.
    void ReadingArrived(int slot) override;
    void ArrayArrived(int slot) override { MarkValues(slot, controls::Grey); }

private:
    void MarkValues(int slot, controls::Colour back);
    void PressCell(int row, int column);
    void ClickCell(int row, int column);
    bool IsName(int row, int column) const;
    // Switches a present sensor on or off.
    void ToggleEnabled(int slot);

    controls::Grid& grid_;
    sensors::SensorTable& table_;
    SensorSelection& selection_;
    const util::NumberForm& numbers_;
};

}  // namespace kelvra::ui
