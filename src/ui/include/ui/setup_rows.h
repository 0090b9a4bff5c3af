// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of the setup dialog: one table, a row for each, with the setting that it edits and the
// unit in which it shows it. Showing loops over it; who adds a setting adds a row.
#pragma once

#include <span>
#include <variant>

#include "forms/setup_form.h"
#include "sensors/sensor_table.h"
#include "sensors/settings_fields.h"

namespace kelvra::ui {

using SetupField =
    std::variant<controls::TextField forms::SetupForm::*, controls::CheckField forms::SetupForm::*,
                 controls::ListField forms::SetupForm::*,
                 controls::OptionField forms::SetupForm::*>;

// So many shown units are so many stored ones.
struct SetupUnit {
    double shown = 1;
    double stored = 1;
};

// How a field shows its setting where there is more to it than number, mark, or index.
enum class SetupRule {
    Plain,
    ItemData,       // a list selects the entry with that item data
    NearestEntry,   // an index beyond the list selects its end
    TrueIsFirst,    // of a pair of options
    AlwaysChecked,  // whatever is stored
    Thousandths,    // no more than three decimals
};

struct SetupRow {
    SetupField field;
    sensors::SettingsMember member;
    SetupUnit unit{};
    SetupRule rule = SetupRule::Plain;
};

// In the order of the pages.
std::span<const SetupRow> SetupRows();

// Fills all fields from one sensor's settings. The entries of ShowExclInTSlot are those of the slot
// count that was shown so far; another count refills them by its own change.
void ShowSettings(forms::SetupForm& form, const sensors::SensorSettings& settings);

// The same for the scales of the two displays.
void ShowScaling(forms::SetupForm& form, const sensors::DisplayScaling& scaling);

}  // namespace kelvra::ui
