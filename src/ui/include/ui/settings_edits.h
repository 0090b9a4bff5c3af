// SPDX-License-Identifier: GPL-3.0-or-later
// The one place where a sensor's settings are edited, whoever does it: marks the sensor as changed,
// so that it gets them before its next measurement, does what follows from them, and remembers the
// step for undo.
#pragma once

#include <functional>
#include <string>

#include "measure/modes.h"
#include "sensors/sensor_table.h"
#include "ui/edit_history.h"
#include "util/listeners.h"

namespace kelvra::ui {

class SettingsListener {
public:
    virtual ~SettingsListener() = default;

    // Settings of the slot have been edited, one by one or all; `before` is what they were.
    virtual void SettingsEdited(int /*slot*/, const sensors::SensorSettings& /*before*/) {}
    // The slot's sensor has got other settings, from elsewhere than the dialog.
    virtual void SettingsReplaced(int /*slot*/) {}
    // The scale of the slot's displays has been edited.
    virtual void ScaleEdited(int /*slot*/) {}
};

class SettingsEdits {
public:
    SettingsEdits(sensors::SensorTable& table, measure::Modes& modes, EditHistory& history)
        : table_(table), modes_(modes), history_(history) {}

    // The slot's settings have been edited where they are; `before` is what they were. `what` and
    // `gatheredIn` are those of the step (EditHistory).
    void Edited(int slot, std::string what, const sensors::SensorSettings& before,
                const controls::Control* gatheredIn = nullptr);
    // What was typed or dragged is complete.
    void EndStep() { history_.EndStep(); }
    // Gives the slot's sensor other settings.
    void Replace(int slot, std::string what, const sensors::SensorSettings& settings,
                 const controls::Control* gatheredIn = nullptr);
    // Undo and redo: changes the settings in which the two ends of the change differ. No step.
    void Make(int slot, const SettingsChange& change);

    // Settings have been edited.
    std::function<void()> onEdit;
    util::Listeners<SettingsListener> listeners;

private:
    void Follow(int slot, const sensors::SensorSettings& before);

    sensors::SensorTable& table_;
    measure::Modes& modes_;
    EditHistory& history_;
};

}  // namespace kelvra::ui
