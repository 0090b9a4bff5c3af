// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/setup_rows.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "util/number_reading.h"
#include "util/number_text.h"

namespace kelvra::ui {

using controls::CheckBox;
using controls::List;
using controls::OptionGroup;
using controls::TextBox;
using forms::SetupForm;
using sensors::SensorSettings;

namespace {

constexpr SetupUnit One{};
constexpr SetupUnit Ms{1e3, 1, Quantity::Time};
constexpr SetupUnit Seconds{1, 1, Quantity::Time};
constexpr SetupUnit Us{1e6, 1, Quantity::Time};
constexpr SetupUnit Mhz{1, 1e6, Quantity::Frequency};

// clang-format off
constexpr SetupRow Rows[] = {
    {&SetupForm::SensMode,             &SensorSettings::Mode,                One, SetupRule::ItemData},
    {&SetupForm::SensContAVTime,       &SensorSettings::ContAVAper,          Ms},
    {&SetupForm::SensContAVSmooth,     &SensorSettings::ContAvSmooth},
    {&SetupForm::SensBuffAVSize,       &SensorSettings::BuffAVBuffer},
    {&SetupForm::SensBurstDropOut,     &SensorSettings::BurstAVDropTol,      Us},
    {&SetupForm::SensSlotCount,        &SensorSettings::TSlotCount,          One, SetupRule::AtLeastOne},
    {&SetupForm::SensSlotWidth,        &SensorSettings::TSlotWidth,          Ms},
    {&SetupForm::SensSlotExclStart,    &SensorSettings::TSlotExclStart,      Ms},
    {&SetupForm::SensSlotExclStop,     &SensorSettings::TSlotExclStop,       Ms},
    {&SetupForm::ShowExclInTSlot,      &SensorSettings::TSlotExclDispInSlot, One, SetupRule::NearestEntry},
    {&SetupForm::ScopePoints,          &SensorSettings::ScopePoints},
    {&SetupForm::ScopeTime,            &SensorSettings::ScopeTime,           Ms},
    {&SetupForm::ScopeTimeOffset,      &SensorSettings::ScopeOffset,         Ms},
    {&SetupForm::ScopeRealtime,        &SensorSettings::ScopeRealtime},
    {&SetupForm::ScopeAVGState,        &SensorSettings::ScopeAVGEnable},
    {&SetupForm::ScopeAvgMode,         &SensorSettings::ScopeAvgMode},
    {&SetupForm::ScopeAvgResValue,     &SensorSettings::ScopeAVGNormVal},
    {&SetupForm::ScopeAvgSNRValue,     &SensorSettings::ScopeAVGSNVal},
    {&SetupForm::ScopeAvgCount,        &SensorSettings::ScopeAVGManCount},
    {&SetupForm::ScopeAvgMaxTime,      &SensorSettings::ScopeAVGMaxSetTime,  Seconds},
    {&SetupForm::ScopeMovingAveraging, &SensorSettings::ScopeAVGMoving},
    {&SetupForm::SensAVGState,         &SensorSettings::AvgEnable},
    {&SetupForm::SensAvgMode,          &SensorSettings::AvgMode},
    {&SetupForm::SensAvgResValue,      &SensorSettings::AvgNormVal},
    {&SetupForm::SensAvgSNRValue,      &SensorSettings::AvgSNVal},
    {&SetupForm::SensAvgCount,         &SensorSettings::AvgManCount},
    {&SetupForm::SensAvgMaxTime,       &SensorSettings::AvgMaxSetTime,       Seconds},
    {&SetupForm::SensAvgSlot,          &SensorSettings::AvgSlotNum},
    {&SetupForm::MovingAveraging,      &SensorSettings::AvgMoving},
    {&SetupForm::SensTrigger,          &SensorSettings::TrigSource},
    {&SetupForm::SensTriggerSlope,     &SensorSettings::TrigSlope},
    {&SetupForm::SensTriggerCount,     &SensorSettings::TrigCount},
    {&SetupForm::SensTriggerDelay,     &SensorSettings::TrigDelay,           Ms,  SetupRule::Thousandths},
    {&SetupForm::SensTriggerLevel,     &SensorSettings::TrigLevel},
    {&SetupForm::SensTriggerHyst,      &SensorSettings::TrigHyster},
    {&SetupForm::SensTriggerHoldOff,   &SensorSettings::TrigHoldOff,         Ms},
    {&SetupForm::CorrFreqEnable,       &SensorSettings::CorrFreq,            One, SetupRule::AlwaysChecked},
    {&SetupForm::CorrFreqValue,        &SensorSettings::CorrFreqVal,         Mhz},
    {&SetupForm::CorrOffsetEnable,     &SensorSettings::CorrOffset},
    {&SetupForm::CorrOffsetValue,      &SensorSettings::CorrOffsetVal},
    {&SetupForm::CorrGammaEnabled,     &SensorSettings::CorrGamma},
    {&SetupForm::CorrGammaAmp,         &SensorSettings::CorrGammaAmp},
    {&SetupForm::CorrGammaPhase,       &SensorSettings::CorrGammaPha},
    {&SetupForm::CorrDutyEnable,       &SensorSettings::CorrDuty},
    {&SetupForm::CorrDutyValue,        &SensorSettings::CorrDutyVal},
    {&SetupForm::CorrSParaEnabled,     &SensorSettings::CorrSParaCor},
    {&SetupForm::SensRange,            &SensorSettings::RangeAuto,           One, SetupRule::TrueIsFirst},
    {&SetupForm::SensRangeXOver,       &SensorSettings::RangeCross},
    {&SetupForm::SensRangeValue,       &SensorSettings::RangePath},
    {&SetupForm::SensSampFreq,         &SensorSettings::FreqHigh,            One, SetupRule::TrueIsFirst},
    {&SetupForm::SensInitCont,         &SensorSettings::ContMeas},
};
// clang-format on

constexpr ScaleBox Boxes[] = {
    {&SetupForm::txtMinScope, &sensors::DisplayScaling::minScope},
    {&SetupForm::txtMaxScope, &sensors::DisplayScaling::maxScope},
    {&SetupForm::txtMinTime, &sensors::DisplayScaling::minTime},
    {&SetupForm::txtMaxTime, &sensors::DisplayScaling::maxTime},
};

int NearestEntryOf(const List& list, int index) {
    return std::min(std::max(index, 0), list.Count() - 1);
}

std::string ShownNumber(double value) {
    return util::GeneralText(value, {});
}

void Show(TextBox& box, double stored, const SetupRow& row, Typing typing) {
    if (typing == Typing::Stays && (box.Edited() || !box.fault->empty())) return;
    box.SetText(ShownText(stored, row));
    box.fault = std::string();
}

void Show(CheckBox& box, double stored, const SetupRow& row, Typing) {
    box.SetChecked(stored != 0 || row.rule == SetupRule::AlwaysChecked);
}

void Show(List& list, double stored, const SetupRow& row, Typing) {
    int index = static_cast<int>(stored);
    if (row.rule == SetupRule::ItemData) index = list.IndexOfData(index);
    if (row.rule == SetupRule::NearestEntry) index = NearestEntryOf(list, index);
    list.SetIndex(index);
}

void Show(OptionGroup& group, double stored, const SetupRow& row, Typing) {
    const int option = std::min(std::max(static_cast<int>(stored), 0), group.Count() - 1);
    group.SetSelected(row.rule == SetupRule::TrueIsFirst ? 1 - option : option);
}

}  // namespace

std::span<const SetupRow> SetupRows() {
    return Rows;
}

std::string NameOf(const SetupForm& form, const SetupRow& row) {
    return std::visit(
        [&](auto field) -> std::string {
            const auto& control = form.*field;
            if constexpr (requires { control.caption; })
                return control.caption;
            else
                return control.captionLabel ? control.captionLabel->caption.Get()
                                            : control.access.name;
        },
        row.field);
}

std::string ShownText(double stored, const SetupRow& row) {
    double shown = stored * row.unit.shown / row.unit.stored;
    if (row.rule == SetupRule::Thousandths) shown = std::nearbyint(shown * 1e3) / 1e3;
    if (row.rule == SetupRule::AtLeastOne) shown = std::max(shown, 1.0);
    return ShownNumber(shown);
}

void ShowSettings(SetupForm& form, const SensorSettings& settings, Typing typing) {
    ShowSlotNumbers(form, settings);
    for (const SetupRow& row : Rows)
        std::visit(
            [&](auto field, auto member) {
                Show(form.*field, static_cast<double>(settings.*member), row, typing);
            },
            row.field, row.member);
    ShowTriggerButton(form, settings);
}

void ShowSlotNumbers(SetupForm& form, const SensorSettings& settings) {
    std::vector<List::Item> numbers;
    for (int slot = 1; slot <= settings.TSlotCount; ++slot)
        numbers.push_back({util::TrimmedNumberText(std::int64_t{slot})});
    if (form.ShowExclInTSlot.Items() != numbers) form.ShowExclInTSlot.Fill(std::move(numbers));
    form.ShowExclInTSlot.SetIndex(
        NearestEntryOf(form.ShowExclInTSlot, settings.TSlotExclDispInSlot));
}

void ShowTriggerButton(SetupForm& form, const SensorSettings& settings) {
    form.SensTriggerNow.visible = settings.TrigSource == sensors::SingleTrigger;
}

std::span<const ScaleBox> ScaleBoxes() {
    return Boxes;
}

void ShowScaling(SetupForm& form, const sensors::DisplayScaling& scaling, Typing typing) {
    form.chkAutoScaleScope.SetChecked(scaling.autoScaleScope);
    form.chkAutoScaleTime.SetChecked(scaling.autoScaleTime);
    for (const ScaleBox& row : ScaleBoxes()) {
        TextBox& box = form.*row.box;
        if (typing == Typing::Stays && (box.Edited() || !box.fault->empty())) continue;
        box.SetText(ShownNumber(scaling.*row.limit));
        box.fault = std::string();
    }
}

}  // namespace kelvra::ui
