// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/settings_edits.h"

namespace kelvra::ui {

using sensors::SensorSettings;

void SettingsEdits::Edited(int slot, const SensorSettings& before) {
    sensors::SensorEntry& entry = table_[slot];
    entry.settingsChanged = true;
    if (entry.settings.Mode != before.Mode) {
        sensors::ChangeMode(table_, slot);
        modes_.Find();
    } else if (entry.settings.TSlotCount != before.TSlotCount) {
        sensors::PrepareWorkArrays(table_, slot);
    }
    if (onEdit) onEdit();
}

void SettingsEdits::Replace(int slot, const SensorSettings& settings) {
    const SensorSettings before = table_[slot].settings;
    table_[slot].settings = settings;
    Edited(slot, before);
    if (slot == table_.currentSensor && onReplace) onReplace();
}

}  // namespace kelvra::ui
