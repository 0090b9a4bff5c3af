// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensors/settings_fields.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace kelvra::sensors {

namespace {

// clang-format off
constexpr SettingsField Fields[] = {
    {"Mode",                "_MODE", "Mode",                &SensorSettings::Mode,                0},
    {"ContAVAper",          "_MODE", "ContAVAper",          &SensorSettings::ContAVAper,          0.1},
    {"ContAvSmooth",        "_MODE", "ContAvSmooth",        &SensorSettings::ContAvSmooth,        1},
    {"BuffAVBuffer",        "_MODE", "BuffAVBuffer",        &SensorSettings::BuffAVBuffer,        100},
    {"BurstAVDropTol",      "_MODE", "BurstAVDropTol",      &SensorSettings::BurstAVDropTol,      0.0001},
    {"TSlotCount",          "_MODE", "TSlotCount",          &SensorSettings::TSlotCount,          8},
    {"TSlotWidth",          "_MODE", "TSlotWidth",          &SensorSettings::TSlotWidth,          0.001},
    {"TSlotGraph",          "_MODE", "TSlotGraph",          &SensorSettings::TSlotGraph,          1},
    {"TSlotTable",          "_MODE", "TSlotTable",          &SensorSettings::TSlotTable,          1},
    {"TSlotExclStart",      "_MODE", "TSlotExclStart",      &SensorSettings::TSlotExclStart,      0},
    {"TSlotExclStop",       "_MODE", "TSlotExclStop",       &SensorSettings::TSlotExclStop,       0},
    {"TSlotExclDispInSlot", "_MODE", "TSlotExclDispInSlot", &SensorSettings::TSlotExclDispInSlot, 0},
    {"ScopePoints",         "_MODE", "ScopePoints",         &SensorSettings::ScopePoints,         312},
    {"ScopeTime",           "_MODE", "ScopeTime",           &SensorSettings::ScopeTime,           0.01},
    {"ScopeOffset",         "_MODE", "ScopeOffset",         &SensorSettings::ScopeOffset,         0},
    {"ScopeRealtime",       "_MODE", "ScopeRealtime",       &SensorSettings::ScopeRealtime,       0},
    {"ScopeAVGEnable",      "_MODE", "ScopeAVGEnable",      &SensorSettings::ScopeAVGEnable,      1},
    {"ScopeAvgMode",        "_MODE", "ScopeAvgMode",        &SensorSettings::ScopeAvgMode,        0},
    {"ScopeAVGNormVal",     "_MODE", "ScopeAVGNormVal",     &SensorSettings::ScopeAVGNormVal,     3},
    {"ScopeAVGSNVal",       "_MODE", "ScopeAVGSNVal",       &SensorSettings::ScopeAVGSNVal,       0.1},
    {"ScopeAVGManCount",    "_MODE", "ScopeAVGManCount",    &SensorSettings::ScopeAVGManCount,    4},
    {"ScopeAVGMaxSetTime",  "_MODE", "ScopeAVGMaxSetTime",  &SensorSettings::ScopeAVGMaxSetTime,  4},
    {"ScopeAVGMoving",      "_MODE", "ScopeAVGMoving",      &SensorSettings::ScopeAVGMoving,      1},
    {"AvgEnable",           "_AVER", "Enable",              &SensorSettings::AvgEnable,           1},
    {"AvgMode",             "_AVER", "Mode",                &SensorSettings::AvgMode,             0},
    {"AvgNormVal",          "_AVER", "NormVal",             &SensorSettings::AvgNormVal,          3},
    {"AvgSNVal",            "_AVER", "SNVal",               &SensorSettings::AvgSNVal,            0.1},
    {"AvgManCount",         "_AVER", "ManCount",            &SensorSettings::AvgManCount,         4},
    {"AvgMaxSetTime",       "_AVER", "MaxSetTime",          &SensorSettings::AvgMaxSetTime,       4},
    {"AvgSlotNum",          "_AVER", "SlotNum",             &SensorSettings::AvgSlotNum,          4},
    {"AvgMoving",           "_AVER", "Moving",              &SensorSettings::AvgMoving,           1},
    {"TrigSource",          "_TRIG", "Mode",                &SensorSettings::TrigSource,          3},
    {"TrigSlope",           "_TRIG", "Slope",               &SensorSettings::TrigSlope,           0},
    {"TrigCount",           "_TRIG", "Count",               &SensorSettings::TrigCount,           1},
    {"TrigDelay",           "_TRIG", "Delay",               &SensorSettings::TrigDelay,           0},
    {"TrigLevel",           "_TRIG", "level",               &SensorSettings::TrigLevel,           -30},
    {"TrigHyster",          "_TRIG", "Hyster",              &SensorSettings::TrigHyster,          0},
    {"TrigHoldOff",         "_TRIG", "HoldOff",             &SensorSettings::TrigHoldOff,         0},
    {"CorrFreq",            "_CORR", "Freq",                &SensorSettings::CorrFreq,            0},
    {"CorrFreqVal",         "_CORR", "FreqVal",             &SensorSettings::CorrFreqVal,         50000000},
    {"CorrOffset",          "_CORR", "Offset",              &SensorSettings::CorrOffset,          0},
    {"CorrOffsetVal",       "_CORR", "OffsetVal",           &SensorSettings::CorrOffsetVal,       0},
    {"CorrGamma",           "_CORR", "Gamma",               &SensorSettings::CorrGamma,           0},
    {"CorrGammaAmp",        "_CORR", "GammaAmp",            &SensorSettings::CorrGammaAmp,        1},
    {"CorrGammaPha",        "_CORR", "GammaPha",            &SensorSettings::CorrGammaPha,        0},
    {"CorrDuty",            "_CORR", "Duty",                &SensorSettings::CorrDuty,            0},
    {"CorrDutyVal",         "_CORR", "DutyVal",             &SensorSettings::CorrDutyVal,         1},
    {"CorrSParaCor",        "_CORR", "SParaCor",            &SensorSettings::CorrSParaCor,        0},
    {"RangeAuto",           "_ADVA", "RangeAuto",           &SensorSettings::RangeAuto,           1},
    {"RangeCross",          "_ADVA", "RangeCross",          &SensorSettings::RangeCross,          0},
    {"RangePath",           "_ADVA", "RangePath",           &SensorSettings::RangePath,           2},
    {"FreqHigh",            "_ADVA", "FreqHigh",            &SensorSettings::FreqHigh,            1},
    {"ContMeas",            "_ADVA", nullptr,               &SensorSettings::ContMeas,            0},
};
// clang-format on

constexpr std::size_t FileFieldCount =
    std::count_if(std::begin(Fields), std::end(Fields),
                  [](const SettingsField& field) { return field.key != nullptr; });

constexpr std::size_t PositionOf(std::string_view name) {
    std::size_t position = 0;
    while (Fields[position].name != name) ++position;
    return position;
}

// In files, the slot that shows the exclusion comes before the two times that it belongs to.
constexpr auto InFileOrder() {
    std::array<const SettingsField*, FileFieldCount> order{};
    std::size_t count = 0;
    for (const SettingsField& field : Fields)
        if (field.key != nullptr) order[count++] = &field;
    const auto start = order.begin() + PositionOf("TSlotExclStart");
    const auto shown = order.begin() + PositionOf("TSlotExclDispInSlot");
    std::rotate(start, shown, shown + 1);
    return order;
}

constexpr auto FieldsInFileOrder = InFileOrder();

}  // namespace

std::span<const SettingsField> SettingsFields() {
    return Fields;
}

std::span<const SettingsField* const> FileFields() {
    return FieldsInFileOrder;
}

SensorSettings DefaultSettings() {
    SensorSettings settings;
    for (const SettingsField& field : Fields)
        std::visit(
            [&](auto member) {
                auto& value = settings.*member;
                value = static_cast<std::remove_reference_t<decltype(value)>>(field.fallback);
            },
            field.member);
    return settings;
}

}  // namespace kelvra::sensors
