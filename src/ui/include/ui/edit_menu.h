// SPDX-License-Identifier: GPL-3.0-or-later
// The Edit menu's Undo and Redo: they say what is next for the current sensor or the formulas, and
// do it. Which steps there are is in edit_history.h.
#pragma once

#include "forms/main_window.h"
#include "ui/calc_grid.h"
#include "ui/edit_history.h"
#include "ui/sensor_selection.h"
#include "ui/settings_edits.h"

namespace kelvra::ui {

class EditMenu final : public CurrentSensorListener {
public:
    struct Parts {
        forms::MDIMain& window;
        const sensors::SensorTable& table;
        EditHistory& history;
        SettingsEdits& edits;
        CalcGrid& formulas;
        SensorSelection& selection;
    };

    explicit EditMenu(const Parts& parts);

    void CurrentSensorChanged() override { Refresh(); }

private:
    void Go(Direction direction);
    void Refresh();
    void Show(controls::MenuItem& item, const std::string& verb, const EditStep* next);
    const std::string& CurrentKey() const;

    Parts p_;
};

}  // namespace kelvra::ui
