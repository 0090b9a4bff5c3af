// SPDX-License-Identifier: GPL-3.0-or-later
// The fields of the setup dialog: one table with a row for each field, its setting and the unit in
// which it is shown. Showing loops over the table; a new setting needs a new row.
#pragma once

#include <span>
#include <string>
#include <variant>

#include "forms/setup_form.h"
#include "sensors/sensor_table.h"
#include "sensors/settings_fields.h"
#include "ui/typed_number.h"

namespace kelvra::ui {

using SetupField =
    std::variant<controls::TextField forms::SetupForm::*, controls::CheckField forms::SetupForm::*,
                 controls::ListField forms::SetupForm::*,
                 controls::OptionField forms::SetupForm::*>;

// How many shown units make how many stored ones (s, Hz).
struct SetupUnit {
    double shown = 1;
    double stored = 1;
    Quantity quantity = Quantity::Plain;
};

// How a field shows its setting if not simply as a number, a mark, or an index.
enum class SetupRule {
    Plain,
    ItemData,       // a list selects the entry with that item data
    NearestEntry,   // an index beyond the list selects its last entry
    TrueIsFirst,    // of a pair of options
    AlwaysChecked,  // ignores the setting
    Thousandths,    // at most three decimals are shown; whole ones are stored
    AtLeastOne,     // a smaller number is stored as 1
};

struct SetupRow {
    SetupField field;
    sensors::SettingsMember member;
    SetupUnit unit{};
    SetupRule rule = SetupRule::Plain;
};

// In the order of the pages.
std::span<const SetupRow> SetupRows();

// The name of what is set: the field's caption, or else what a screen reader says.
std::string NameOf(const forms::SetupForm& form, const SetupRow& row);

// The text of a text field for a setting.
std::string ShownText(double stored, const SetupRow& row);

// A text that the user is typing, or that can't be used.
enum class Typing { IsReplaced, Stays };

// Fills all fields from one sensor's settings.
void ShowSettings(forms::SetupForm& form, const sensors::SensorSettings& settings,
                  Typing typing = Typing::IsReplaced);

// ShowExclInTSlot: a number for each time slot, and the chosen one, or else the last.
void ShowSlotNumbers(forms::SetupForm& form, const sensors::SensorSettings& settings);
// The button that triggers is there for single triggers.
void ShowTriggerButton(forms::SetupForm& form, const sensors::SensorSettings& settings);

// The boxes for the limits of the displays' scales, in dBm.
struct ScaleBox {
    controls::TextBox forms::SetupForm::*box;
    double sensors::DisplayScaling::*limit;
};
std::span<const ScaleBox> ScaleBoxes();

// Fills the scales of the two displays.
void ShowScaling(forms::SetupForm& form, const sensors::DisplayScaling& scaling,
                 Typing typing = Typing::IsReplaced);

}  // namespace kelvra::ui
