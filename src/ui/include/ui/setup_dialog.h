// SPDX-License-Identifier: GPL-3.0-or-later
// The setup dialog: shows the current sensor's settings, and writes every edit into them at once;
// the sensor gets them before its next measurement. What is enabled is in enable_states.h, the
// sensor's name in sensor_name.h.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/setup_form.h"
#include "platform/host.h"
#include "sensors/sensor_table.h"
#include "ui/display_lists.h"
#include "ui/enabling.h"
#include "ui/error_strip.h"
#include "ui/sensor_selection.h"
#include "ui/settings_edits.h"
#include "ui/setup_rows.h"

namespace kelvra::ui {

class SetupDialog final : public CurrentSensorListener, public SettingsListener {
public:
    struct Parts {
        forms::SetupForm& form;
        sensors::SensorTable& table;
        SettingsEdits& edits;
        SensorSelection& selection;
        Enabling& enabling;
        ErrorStrip& errorStrip;
        DisplayLists& displays;
        platform::Host& host;
    };

    explicit SetupDialog(const Parts& parts);

    // Fills the dialog with the current sensor's settings. Stores nothing and marks nothing as
    // changed.
    void ShowCurrent(Typing typing = Typing::IsReplaced);
    // A box in which the user is typing stays as it is, unless it was another sensor's.
    void CurrentSensorChanged() override;
    void SettingsReplaced(int slot) override;

    // The dialog shows the scales of that display for the current sensor.
    bool TraceScaleShown() const;
    bool TimeSlotScaleShown() const;

private:
    void ConnectFields();
    void ConnectScales();

    sensors::SensorEntry* Current();
    void FillModes(const sensors::SensorEntry& entry);
    void Edited(const SetupRow& row);
    void Remember(const SetupRow& row, const sensors::SensorSettings& before);
    void Tidy(const SetupRow& row, controls::TextBox& box);
    bool CountIsRight();
    void AfterStore(const SetupRow& row, const sensors::SensorSettings& before);
    int TypedPoints() const;
    void LimitPoints();
    void JudgePoints();
    sensors::DisplayScaling& Scaling();
    void StoreLimit(const ScaleBox& row);
    void JudgeLimits();
    void StoreAutomatic();

    Parts p_;
    const std::vector<controls::List::Item> allModes_;
    bool filling_ = true;   // until the first sensor is shown
    std::string shownFor_;  // resource of the sensor
};

}  // namespace kelvra::ui
