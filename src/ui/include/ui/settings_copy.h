// SPDX-License-Identifier: GPL-3.0-or-later
// "Copy settings to...": the window in which the user marks the sensors that get all settings of
// the current one. A sensor can be marked if its model has the current sensor's
// mode. The window follows the current sensor, and sensors that come and go.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "forms/forms.h"
#include "measure/listener.h"
#include "ui/notice.h"
#include "ui/sensor_selection.h"
#include "ui/settings_edits.h"

namespace kelvra::ui {

class SettingsCopy final : public CurrentSensorListener, public measure::MeasurementListener {
public:
    struct Parts {
        forms::Forms& forms;
        const sensors::SensorTable& table;
        SettingsEdits& edits;
        SensorSelection& selection;
        Notice& notice;
    };

    explicit SettingsCopy(const Parts& parts);

    void CurrentSensorChanged() override { Refresh(); }
    // Also after Start's reordering, and when sensors have come or gone or have other names.
    void ModesChanged() override { Refresh(); }

private:
    struct Row {
        std::string key;  // the sensor's
        bool canBeMarked = false;
    };

    void Open();
    void Refresh();
    void ShowRow(int row, int slot);
    void Toggle(int row);
    void MarkAll();
    void Copy();

    // Present, and not the current one.
    bool IsOther(int slot) const;
    // Why it can't get the settings; empty if it can.
    std::string Obstacle(int slot) const;
    bool IsMarked(int slot) const;

    Parts p_;
    forms::CopyForm& form_;
    std::vector<Row> rows_;         // as shown
    std::set<std::string> marked_;  // keys
};

}  // namespace kelvra::ui
