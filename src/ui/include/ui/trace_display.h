// SPDX-License-Identifier: GPL-3.0-or-later
// The trace display: draws the power over time of the sensor that is selected in it, with the
// cursors of trigger and time slots, and edits the settings that they are dragged to. While it is
// hidden it draws nothing; it catches up when it is shown.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "measure/listener.h"
#include "platform/host.h"
#include "ui/cursor_entry.h"
#include "ui/display_lists.h"
#include "ui/held_traces.h"
#include "ui/pulse_table.h"
#include "ui/sensor_selection.h"
#include "ui/settings_edits.h"
#include "ui/setup_dialog.h"

namespace kelvra::ui {

class TraceDisplay final : public measure::MeasurementListener,
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

    explicit TraceDisplay(const Parts& parts);

    // The zoom is on. The level axis and the trace go on while it is; the time axis stays.
    bool Zoomed() const;
    // The index of each cursor that is shown, -1 if it is not.
    int ShownIndex(TraceCursor cursor) const;

    void Started() override { SayWhatIsAwaited(true); }
    void Stopped() override { SayWhatIsAwaited(false); }
    void ModesChanged() override { Redraw(); }
    void ArrayArrived(int slot) override;
    void CurrentSensorChanged() override { Redraw(); }
    void ListedChanged() override { Redraw(); }
    // Redraws if what has been edited is drawn.
    void SettingsEdited(int slot, const sensors::SensorSettings& before) override;
    void ScaleEdited(int slot) override {
        if (slot == Slot()) Redraw();
    }

private:
    int Slot() const { return p_.lists.Slot(sensors::Trace); }  // -1: none
    void Choose();
    void Redraw();
    void Clear();
    void Draw(int slot);
    void DrawCurve(const sensors::SensorEntry& entry);
    void Rescale(int slot);
    void ShowLabels(const std::vector<double>& powers, double width);
    void ShowBox(const sensors::SensorSettings& settings);
    void ShowPulses(const sensors::SensorEntry& entry);
    void ToggleZoom();
    void Dragged(int cursor, double x, double y);
    void Released();
    void ShowDrag(const CursorValue& now);
    void ShowPointed(double x);
    void SayWhatIsAwaited(bool measuring);

    Parts p_;
    forms::ScopeDisp& form_;
    controls::Graph& graph_;
    HeldTraces held_;
    PulseTable pulses_;
    CursorEntry cursorEntry_;
    std::string drawnSensor_;  // its resource
    // A drag goes on with the sensor with which it began.
    struct Drag {
        std::string sensor;  // its resource
        CursorValue began;
    };
    std::optional<Drag> drag_;
};

}  // namespace kelvra::ui
