// SPDX-License-Identifier: GPL-3.0-or-later
// The one place where a sensor's settings are edited, whoever does it: marks the sensor as changed,
// so that it gets them before its next measurement, and does what follows from them.
#pragma once

#include <functional>

#include "measure/modes.h"
#include "sensors/sensor_table.h"

namespace kelvra::ui {

class SettingsEdits {
public:
    SettingsEdits(sensors::SensorTable& table, measure::Modes& modes)
        : table_(table), modes_(modes) {}

    // The slot's settings have been edited where they are; `before` is what they were.
    void Edited(int slot, const sensors::SensorSettings& before);
    // Gives the slot's sensor other settings.
    void Replace(int slot, const sensors::SensorSettings& settings);

    // Settings have been edited.
    std::function<void()> onEdit;
    // The current sensor has got other settings, which are to be shown.
    std::function<void()> onReplace;

private:
    sensors::SensorTable& table_;
    measure::Modes& modes_;
};

}  // namespace kelvra::ui
