// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/edit_menu.h"

#include "ui/sensor_text.h"

namespace kelvra::ui {

EditMenu::EditMenu(const Parts& parts) : p_(parts) {
    p_.selection.listeners.Add(*this);
    p_.history.onChange = [this] { Refresh(); };
    p_.window.EditUndo.click.Connect([this] { Go(Direction::Undo); });
    p_.window.EditRedo.click.Connect([this] { Go(Direction::Redo); });
}

const std::string& EditMenu::CurrentKey() const {
    return sensors::KeyOf(p_.table[p_.table.currentSensor]);
}

void EditMenu::Go(Direction direction) {
    const auto step = p_.history.Take(direction, CurrentKey());
    if (!step) return;
    if (const auto* settings = std::get_if<SettingsChange>(&step->change))
        p_.edits.Make(p_.table.currentSensor, *settings);
    else
        p_.formulas.Make(std::get<FormulaChange>(step->change));
}

void EditMenu::Refresh() {
    Show(p_.window.EditUndo, "Undo", p_.history.Next(Direction::Undo, CurrentKey()));
    Show(p_.window.EditRedo, "Redo", p_.history.Next(Direction::Redo, CurrentKey()));
}

void EditMenu::Show(controls::MenuItem& item, const std::string& verb, const EditStep* next) {
    std::string caption = verb;
    if (next != nullptr) caption += ": " + next->what;
    if (next != nullptr && !next->sensor.empty())
        caption += " of " + SensorText(p_.table, p_.table.currentSensor);
    item.caption = std::move(caption);
    item.enabled = next != nullptr;
}

}  // namespace kelvra::ui
