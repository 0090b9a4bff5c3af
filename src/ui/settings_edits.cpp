// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/settings_edits.h"

#include <utility>

namespace kelvra::ui {

using sensors::SensorSettings;

void SettingsEdits::Edited(int slot, std::string what, const SensorSettings& before,
                           const controls::Control* gatheredIn) {
    const sensors::SensorEntry& entry = table_[slot];
    history_.Add({sensors::KeyOf(entry), std::move(what), SettingsChange{before, entry.settings}},
                 gatheredIn);
    Follow(slot, before);
}

void SettingsEdits::Replace(int slot, std::string what, const SensorSettings& settings,
                            const controls::Control* gatheredIn) {
    const SensorSettings before = table_[slot].settings;
    table_[slot].settings = settings;
    Edited(slot, std::move(what), before, gatheredIn);
    listeners.Tell(&SettingsListener::SettingsReplaced, slot);
}

void SettingsEdits::Make(int slot, const SettingsChange& change) {
    SensorSettings& settings = table_[slot].settings;
    const SensorSettings before = settings;
    for (const sensors::SettingsField& field : sensors::SettingsFields())
        std::visit(
            [&](auto member) {
                if (change.from.*member != change.to.*member) settings.*member = change.to.*member;
            },
            field.member);
    Follow(slot, before);
    listeners.Tell(&SettingsListener::SettingsReplaced, slot);
}

void SettingsEdits::Follow(int slot, const SensorSettings& before) {
    sensors::SensorEntry& entry = table_[slot];
    entry.settingsChanged = true;
    if (entry.settings.Mode != before.Mode) {
        sensors::ChangeMode(table_, slot);
        modes_.Find();
    } else if (entry.settings.TSlotCount != before.TSlotCount) {
        sensors::PrepareWorkArrays(table_, slot);
    }
    if (onEdit) onEdit();
    listeners.Tell(&SettingsListener::SettingsEdited, slot, before);
}

}  // namespace kelvra::ui
