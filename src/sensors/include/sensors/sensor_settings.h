// SPDX-License-Identifier: GPL-3.0-or-later
// What a user can set on one sensor. Times in s, frequencies in Hz, levels in dBm, differences in
// dB. Defaults, file keys and order are in settings_fields.h; this is the plain record.
#pragma once

#include <cstdint>

namespace kelvra::sensors {

// Measurement modes, the driver's own codes.
enum Mode : std::int32_t {
    ContinuousAverage = 0,
    BufferedAverage = 1,
    TimeSlot = 2,
    Burst = 3,
    Trace = 4,
};

// Trigger sources, the driver's own codes.
enum TriggerSource : std::int16_t {
    SingleTrigger = 0,
    ExternalTrigger = 1,
    HoldTrigger = 2,
    ImmediateTrigger = 3,
    InternalTrigger = 4,
};

// Averaging modes.
enum AveragingMode : std::int16_t { ByResolution = 0, ByNoise = 1, ByCount = 2 };

// The members have the names under which files and reports know them.
// NOLINTBEGIN(readability-identifier-naming)
struct SensorSettings {
    std::int32_t Mode{};
    double ContAVAper{};
    bool ContAvSmooth{};
    std::int16_t BuffAVBuffer{};
    double BurstAVDropTol{};
    std::int16_t TSlotCount{};
    double TSlotWidth{};
    bool TSlotGraph{};
    bool TSlotTable{};
    double TSlotExclStart{};
    double TSlotExclStop{};
    std::int16_t TSlotExclDispInSlot{};  // slot, from 0, in which the exclusion is drawn
    std::int16_t ScopePoints{};
    double ScopeTime{};
    double ScopeOffset{};
    bool ScopeRealtime{};
    bool ScopeAVGEnable{};
    std::int16_t ScopeAvgMode{};
    double ScopeAVGNormVal{};  // resolution, sent as a whole number
    double ScopeAVGSNVal{};
    std::int32_t ScopeAVGManCount{};
    double ScopeAVGMaxSetTime{};
    bool ScopeAVGMoving{};
    bool AvgEnable{};
    std::int16_t AvgMode{};
    double AvgNormVal{};  // resolution, sent as a whole number
    double AvgSNVal{};
    std::int32_t AvgManCount{};
    double AvgMaxSetTime{};
    std::int16_t AvgSlotNum{};
    bool AvgMoving{};
    std::int16_t TrigSource{};
    std::int16_t TrigSlope{};  // 0 positive, 1 negative
    std::int32_t TrigCount{};
    double TrigDelay{};
    double TrigLevel{};
    double TrigHyster{};
    double TrigHoldOff{};
    bool CorrFreq{};
    double CorrFreqVal{};
    bool CorrOffset{};
    double CorrOffsetVal{};
    bool CorrGamma{};
    double CorrGammaAmp{};
    double CorrGammaPha{};  // degrees
    bool CorrDuty{};
    double CorrDutyVal{};  // %
    bool CorrSParaCor{};
    bool RangeAuto{};
    double RangeCross{};
    std::int16_t RangePath{};  // 0 .. 2
    bool FreqHigh{};
    bool ContMeas{};  // never kept in a file

    bool operator==(const SensorSettings&) const = default;
};
// NOLINTEND(readability-identifier-naming)

}  // namespace kelvra::sensors
