// SPDX-License-Identifier: GPL-3.0-or-later
// The table of time slots: the latest power of each slot of the sensor that the time slot display
// shows, and the statistics of its last readings. It scrolls if the window has no room for all
// slots. While it is hidden it writes nothing; it catches up when it is shown.
#pragma once

#include "forms/forms.h"
#include "measure/listener.h"
#include "platform/computer.h"
#include "sensors/sensor_table.h"
#include "ui/display_lists.h"
#include "ui/sensor_selection.h"
#include "ui/settings_edits.h"

namespace kelvra::ui {

class SlotTable final : public measure::MeasurementListener,
                        public measure::SlotListener,
                        public CurrentSensorListener,
                        public SettingsListener {
public:
    SlotTable(forms::Forms& forms, sensors::SensorTable& table, SettingsEdits& edits,
              const DisplayLists& lists, SensorSelection& selection, platform::Computer& computer);

    void ModesChanged() override { Refresh(); }
    void ArrayArrived(int slot) override;
    void CurrentSensorChanged() override { Refresh(); }
    void ListedChanged() override { Refresh(); }
    // Another number of slots begins their statistics anew.
    void SettingsEdited(int slot, const sensors::SensorSettings& before) override;

private:
    int Slot() const { return lists_.Slot(sensors::TimeSlot); }  // -1: none
    void Refresh();
    void Write(const sensors::SensorEntry& entry);
    void WriteRow(int row, const sensors::ReadingRing& ring);
    void ClearRow(int row);
    void Clear();
    void Reset();

    forms::TimeSlotTabForm& form_;
    const DisplayLists& lists_;
    sensors::SensorTable& table_;
    const util::NumberForm& numbers_;
};

}  // namespace kelvra::ui
