// SPDX-License-Identifier: GPL-3.0-or-later
// The time slot display: the latest power of each time slot of the sensor that is selected in it,
// as a staircase over the slots' numbers, and the trigger level, which can be dragged. While it is
// hidden it draws nothing; it catches up when it is shown.
#pragma once

#include "forms/forms.h"
#include "measure/listener.h"
#include "platform/host.h"
#include "ui/display_lists.h"
#include "ui/sensor_selection.h"
#include "ui/settings_edits.h"
#include "ui/setup_dialog.h"

namespace kelvra::ui {

class SlotDisplay final : public measure::MeasurementListener,
                          public measure::SlotListener,
                          public CurrentSensorListener,
                          public SettingsListener {
public:
    struct Parts {
        forms::Forms& forms;
        sensors::SensorTable& table;
        SettingsEdits& edits;
        const SetupDialog& dialog;
        const DisplayLists& lists;
        SensorSelection& selection;
        platform::Host& host;
    };

    explicit SlotDisplay(const Parts& parts);

    void Started() override { SayWhatIsAwaited(true); }
    void Stopped() override { SayWhatIsAwaited(false); }
    void ModesChanged() override { Redraw(); }
    void ArrayArrived(int slot) override;
    void CurrentSensorChanged() override { Redraw(); }
    void ListedChanged() override { Redraw(); }
    // Redraws if the trigger has been edited.
    void SettingsEdited(int slot, const sensors::SensorSettings& before) override;
    void ScaleEdited(int slot) override {
        if (slot == Slot()) Redraw();
    }

private:
    int Slot() const { return p_.lists.Slot(sensors::TimeSlot); }  // -1: none
    void Choose();
    void Redraw();
    void Draw(int slot);
    void DrawStairs(const sensors::SensorEntry& entry);
    void PlaceLevel(sensors::SensorEntry* entry);
    void Rescale(int slot);
    void Dragged(double level);
    void ShowPointed(double x);
    void SayWhatIsAwaited(bool measuring);

    Parts p_;
    forms::TimeSlotDisp& form_;
    controls::Graph& graph_;
};

}  // namespace kelvra::ui
