// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/limit_entry.h"

#include <cmath>
#include <utility>

#include "ui/typed_number.h"
#include "util/number_text.h"
#include "util/text.h"

namespace kelvra::ui {

namespace {
constexpr BoxUnit LevelUnit{.name = "dBm"};
}  // namespace

LimitEntry::LimitEntry(forms::TrendForm& form, TrendLimits& limits, const util::NumberForm& numbers)
    : form_(form), limits_(limits), numbers_(numbers) {
    for (controls::TextBox* box : {&form_.LowLimit, &form_.HighLimit}) {
        box->change.Connect([this] { Check(); });
        box->commit.Connect([this] { Store(); });
    }
    Show({});
}

void LimitEntry::Show(const std::string& key) {
    const bool other = std::exchange(key_, key) != key;
    const LevelLimits limits = key.empty() ? LevelLimits{} : limits_.Of(key);
    const bool faulty = !form_.LowLimit.fault->empty() || !form_.HighLimit.fault->empty();
    const std::pair<controls::TextBox*, std::optional<double>> boxes[] = {
        {&form_.LowLimit, limits.low}, {&form_.HighLimit, limits.high}};
    for (const auto& [box, level] : boxes) {
        box->enabled = !key.empty();
        if ((box->Edited() || faulty) && !other) continue;
        box->SetText(level ? util::GeneralText(*level, {}) : std::string());
    }
}

std::optional<double> LimitEntry::LevelIn(const controls::TextBox& box) const {
    if (util::TrimBlanks(box.Text()).empty()) return std::nullopt;
    return ReadTyped(box.Text(), LevelUnit, numbers_).value;
}

std::string LimitEntry::FaultOf(const controls::TextBox& box) const {
    if (util::TrimBlanks(box.Text()).empty()) return {};
    const TypedNumber typed = ReadTyped(box.Text(), LevelUnit, numbers_);
    if (!typed.fault.empty() || !(std::abs(typed.value) <= HighestLevel))
        return "This is no level in dBm.";
    return {};
}

void LimitEntry::Check() {
    const std::string low = FaultOf(form_.LowLimit);
    std::string high = FaultOf(form_.HighLimit);
    const bool usable = low.empty() && high.empty();
    const auto least = LevelIn(form_.LowLimit), most = LevelIn(form_.HighLimit);
    if (usable && least && most && *least > *most) high = "The high limit is below the low one.";
    form_.LowLimit.fault = low;
    form_.HighLimit.fault = high;
}

void LimitEntry::Store() {
    if (key_.empty() || !form_.LowLimit.fault->empty() || !form_.HighLimit.fault->empty()) return;
    limits_.Set(key_, {LevelIn(form_.LowLimit), LevelIn(form_.HighLimit)});
    if (onEdit) onEdit();
}

}  // namespace kelvra::ui
