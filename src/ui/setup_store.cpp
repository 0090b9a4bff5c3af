// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/setup_store.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <type_traits>
#include <variant>

#include "ui/typed_number.h"
#include "util/number_reading.h"

namespace kelvra::ui {

using controls::CheckBox;
using controls::List;
using controls::OptionGroup;
using controls::TextBox;

namespace {

constexpr const char* OutOfRange = "This is out of range; the former value stays.";
constexpr double StepsOfThousandths = 1e3;  // of a second

// Nothing for a value that the setting can't have.
template <class Setting>
std::optional<Setting> ValueFor(double value) {
    if constexpr (std::is_same_v<Setting, std::int16_t>)
        return util::RoundToInt16(value);
    else if constexpr (std::is_same_v<Setting, std::int32_t>)
        return util::RoundToInt32(value);
    else
        return std::isfinite(value) ? std::optional<Setting>(static_cast<Setting>(value))
                                    : std::nullopt;
}

std::string_view UnitOf(const TextBox& box) {
    const controls::Field* field = box.AsField();
    if (field == nullptr || !field->unitLabel) return {};
    return field->unitLabel->caption.Get();
}

template <class Setting>
void Store(TextBox& box, Setting& setting, const SetupRow& row, const util::NumberForm& locale) {
    if (box.Text() == ShownText(static_cast<double>(setting), row)) {
        box.fault = std::string();
        return;
    }
    const TypedNumber typed = ReadTyped(
        box.Text(), {UnitOf(box), row.unit.quantity, row.unit.stored / row.unit.shown}, locale);
    double stored = typed.value * row.unit.stored / row.unit.shown;
    if (row.rule == SetupRule::Thousandths)
        stored = std::nearbyint(stored * StepsOfThousandths) / StepsOfThousandths;
    if (row.rule == SetupRule::AtLeastOne) stored = std::max(stored, 1.0);
    const auto value = ValueFor<Setting>(stored);
    if (value) setting = *value;
    box.fault = value ? typed.fault : std::string(OutOfRange);
}

template <class Setting>
void Store(const CheckBox& box, Setting& setting, const SetupRow& row, const util::NumberForm&) {
    setting = static_cast<Setting>(box.Checked() || row.rule == SetupRule::AlwaysChecked);
}

template <class Setting>
void Store(const List& list, Setting& setting, const SetupRow& row, const util::NumberForm&) {
    const int value = row.rule == SetupRule::ItemData ? list.Data() : list.Index();
    if (value >= 0) setting = static_cast<Setting>(value);
}

template <class Setting>
void Store(const OptionGroup& group, Setting& setting, const SetupRow& row,
           const util::NumberForm&) {
    const int option = group.Selected();
    setting = static_cast<Setting>(row.rule == SetupRule::TrueIsFirst ? 1 - option : option);
}

}  // namespace

void StoreField(forms::SetupForm& form, const SetupRow& row, sensors::SensorSettings& settings,
                const util::NumberForm& locale) {
    std::visit([&](auto field, auto member) { Store(form.*field, settings.*member, row, locale); },
               row.field, row.member);
    settings.CorrFreq = true;
}

}  // namespace kelvra::ui
