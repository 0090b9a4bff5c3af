// SPDX-License-Identifier: GPL-3.0-or-later
// The header of the setup dialog and its five pages. A field is one line: its name, its labels,
// help topic, tooltip and range, and what its kind needs besides. Its content comes from a sensor's
// settings. What the controls say about themselves is in setup_texts.h.
#pragma once

#include <vector>

#include "forms/kinds.h"
#include "forms/setup_ranges.h"
#include "forms/setup_texts.h"

namespace kelvra::forms {

// Twips.
struct SetupSizes {
    static constexpr int HeaderWidth = 6000;
    static constexpr int HeaderHeight = 1935;  // with the input-error strip closed
    static constexpr int PageHeight = 6055;
    static constexpr controls::Geometry Page{0, HeaderHeight, HeaderWidth, PageHeight};
    static constexpr controls::Geometry ModePlace{120, 240, HeaderWidth - 240, 2400};
};

using Items = std::vector<List::Item>;
using Options = std::vector<OptionMember>;

struct SetupHeader {
    explicit SetupHeader(Window& dialog)
        : Frame1{dialog, "Frame1", "", {0, 0, SetupSizes::HeaderWidth, SetupSizes::HeaderHeight}} {
        lblInputError.access.explanation = texts::InputError;
    }

    Frame Frame1;
    ListField SensSelect{
        Frame1, "SensSelect", {"lblSensor", "SENSOR", "", 7110, texts::SensorList}};
    ListField SensMode{
        Frame1,
        "SensMode",
        {"lblMode", "Mode", "", 7110, texts::Mode},
        Items{
            {"ContAv", 0}, {"Buffered Cont Avg", 1}, {"Timeslot", 2}, {"Burst", 3}, {"Scope", 4}}};
    Button cmdCopySettings{Frame1,
                           "cmdCopySettings",
                           "Copy to...",
                           "",
                           {.name = "Copy settings to",
                            .explanation = "Gives all settings of this sensor to others."}};
    OptionGroup PageSelect{
        Frame1, "PageSelect",
        Options{{"Option1",
                 "General Settings",
                 {.mnemonic = 'G', .helpTopic = 7111, .explanation = texts::GeneralSettings}},
                {"Option2",
                 "Mode Settings",
                 {.mnemonic = 'M', .helpTopic = 7150, .explanation = texts::ModeSettings}},
                {"Option3",
                 "Trigger",
                 {.mnemonic = 'T', .helpTopic = 7121, .explanation = texts::TriggerSettings}},
                {"Option4",
                 "Correction",
                 {.mnemonic = 'C', .helpTopic = 7131, .explanation = texts::CorrectionSettings}},
                {"Option5",
                 "Advanced Setup",
                 {.mnemonic = 'A', .helpTopic = 7141, .explanation = texts::AdvancedSettings}}}};
    Frame InputErrorFrame{Frame1,
                          "InputErrorFrame",
                          "Input Error Active",
                          {0, SetupSizes::HeaderHeight, SetupSizes::HeaderWidth, 900}};
    Label lblInputError{InputErrorFrame, "lblInputError", "Input Error"};
};

// Page 1
struct GeneralPage {
    explicit GeneralPage(Window& dialog)
        : GeneralFrame{dialog, "GeneralFrame", "General Settings", SetupSizes::Page} {
        chkAutoScaleScope.visible = false;
        txtMinScope.visible = false;
        txtMaxScope.visible = false;
        SensTypeInfo.access.explanation = texts::TypeInfo;
        chkAutoScaleTime.access.explanation = texts::AutoScaleSlots;
        const struct {
            controls::Control& control;
            const char* tooltip;
        } tooltips[] = {
            {chkAutoScaleScope, texts::AutoScaleTrace},
            {txtMinScope, texts::AxisMinimum},
            {txtMinTime, texts::AxisMinimum},
            {txtMaxScope, texts::AxisMaximum},
            {txtMaxTime, texts::AxisMaximum},
            {SensorZero, texts::ZeroSensor},
            {cmdZeroAll, texts::ZeroAll},
            {SensSelfTest, texts::SelfTest},
            {SensInfo, texts::Information},
        };
        for (const auto& row : tooltips) row.control.tooltip = row.tooltip;
        for (TextBox* box : {&txtMinScope, &txtMinTime}) box->access.name = "Minimum";
        for (TextBox* box : {&txtMaxScope, &txtMaxTime}) box->access.name = "Maximum";
    }

    Frame GeneralFrame;
    TextField SensLogicalName{
        GeneralFrame, "SensLogicalName", {"lblName", "Name", "", 7111, texts::LogicalName}};
    Label lblType{GeneralFrame, "lblType", "Type"};
    Label SensTypeInfo{GeneralFrame, "SensTypeInfo"};

    Frame AverageFrame{
        GeneralFrame, "AverageFrame", "Averaging (excl. Scope)", {120, 960, 5760, 2400}};
    CheckField SensAVGState{
        AverageFrame, "SensAVGState", {.tooltip = texts::Averaging}, "Averaging"};
    CheckField MovingAveraging{
        AverageFrame, "MovingAveraging", {.tooltip = texts::MovingAveraging}, "Moving Averaging"};
    Label lblAvgAuto{AverageFrame, "lblAvgAuto", "Auto:"};
    Label lblAvgManual{AverageFrame, "lblAvgManual", "Manual:"};
    OptionField SensAvgMode{AverageFrame,
                            "SensAvgMode",
                            {.name = "Averaging mode"},
                            Options{{"SensAvgMode(0)", "Resolution", {}, texts::ByResolution},
                                    {"SensAvgMode(1)", "Fixed Noise: Content", {}, texts::ByNoise},
                                    {"SensAvgMode(2)", "Normal: Length", {}, texts::ByCount}}};
    TextField SensAvgResValue{
        AverageFrame,
        "SensAvgResValue",
        {.tooltip = texts::Resolution, .range = ranges::Digits, .name = "Resolution"}};
    TextField SensAvgSNRValue{
        AverageFrame,
        "SensAvgSNRValue",
        {"lblAvgSNR", "", "dB", 0, texts::FixedNoise, ranges::Positive, "Fixed noise"}};
    TextField SensAvgCount{
        AverageFrame,
        "SensAvgCount",
        {.tooltip = texts::FilterLength, .range = ranges::Count, .name = "Filter length"}};
    TextField SensAvgMaxTime{
        AverageFrame,
        "SensAvgMaxTime",
        {"lblAvgMaxTime", "Max. Settl. Time", "s", 0, texts::SettlingTime, ranges::NotNegative}};
    TextField SensAvgSlot{
        AverageFrame,
        "SensAvgSlot",
        {"lblAvgSlot", "Ref Timeslot #", "", 0, texts::ReferenceSlot, ranges::SlotNumber}};

    // The boxes of the two displays share their labels: only one display's boxes are visible.
    Frame GraphFrame{GeneralFrame, "GraphFrame", "Graph Settings", {120, 3480, 5760, 1200}};
    CheckBox chkAutoScaleScope{GraphFrame, "chkAutoScaleScope", "Autoscale scope display"};
    CheckBox chkAutoScaleTime{GraphFrame, "chkAutoScaleTime", "Autoscale Time Display"};
    Label lblMinimum{GraphFrame, "lblMinimum", "Minimum"};
    TextBox txtMinScope{GraphFrame, "txtMinScope"};
    TextBox txtMinTime{GraphFrame, "txtMinTime"};
    Label lblMinimumUnit{GraphFrame, "lblMinimumUnit", "dBm"};
    Label lblMaximum{GraphFrame, "lblMaximum", "Maximum"};
    TextBox txtMaxScope{GraphFrame, "txtMaxScope"};
    TextBox txtMaxTime{GraphFrame, "txtMaxTime"};
    Label lblMaximumUnit{GraphFrame, "lblMaximumUnit", "dBm"};

    Frame ActionFrame{GeneralFrame, "ActionFrame", "Sensor Commands", {120, 4800, 5760, 1140}};
    Button SensorZero{
        ActionFrame, "SensorZero", "", "zeroSensPic", {.name = "Zero", .helpTopic = 7111}};
    Button cmdZeroAll{ActionFrame, "cmdZeroAll", "", "zeroSensAllPic", {.name = "Zero all"}};
    Button SensSelfTest{
        ActionFrame, "SensSelfTest", "", "selfTestPic", {.name = "Self test", .helpTopic = 7111}};
    Button SensInfo{
        ActionFrame, "SensInfo", "", "sensInfoPic", {.name = "Information", .helpTopic = 7111}};
    Label lblZeroHint{ActionFrame, "lblZeroHint", texts::ZeroHint};
};

// Page 2: a frame for each mode, all at the same place
struct ModePage {
    explicit ModePage(Window& dialog)
        : ModeFrame{dialog, "ModeFrame", "Mode Settings", SetupSizes::Page} {
        for (Frame* hidden :
             {&ModeFrame, &BufferAVFrame, &TimeSlotFrame, &BurstAVFrame, &ScopeFrame})
            hidden->visible = false;
    }

    Frame ModeFrame;
    Frame ContAVFrame{ModeFrame, "ContAVFrame", "Continuous Average", SetupSizes::ModePlace};
    TextField SensContAVTime{
        ContAVFrame,
        "SensContAVTime",
        {"lblContAVTime", "Window", "ms", 7151, texts::Window, ranges::Positive}};
    CheckField SensContAVSmooth{ContAVFrame,
                                "SensContAVSmooth",
                                {.helpTopic = 7151, .tooltip = texts::Smoothing},
                                "Smoothing"};

    Frame BufferAVFrame{ModeFrame, "BufferAVFrame", "Buffered Average", SetupSizes::ModePlace};
    TextField SensBuffAVSize{
        BufferAVFrame,
        "SensBuffAVSize",
        {"lblBuffAVSize", "buffer size", "", 7153, "", ranges::Readings, "", texts::BufferSize}};

    Frame TimeSlotFrame{ModeFrame, "TimeSlotFrame", "Time Slot", SetupSizes::ModePlace};
    TextField SensSlotCount{
        TimeSlotFrame,
        "SensSlotCount",
        {"lblSlotCount", "No. of Timeslots", "", 7152, texts::SlotCount, ranges::Slots}};
    TextField SensSlotWidth{
        TimeSlotFrame,
        "SensSlotWidth",
        {"lblSlotWidth", "Nominal Width", "ms", 7152, texts::SlotWidth, ranges::Positive}};
    TextField SensSlotExclStart{TimeSlotFrame,
                                "SensSlotExclStart",
                                {"lblSlotExclStart", "Exclude from Start", "ms", 7152,
                                 texts::ExcludeStart, ranges::NotNegative}};
    TextField SensSlotExclStop{TimeSlotFrame,
                               "SensSlotExclStop",
                               {"lblSlotExclStop", "Exclude from End", "ms", 7152,
                                texts::ExcludeStop, ranges::NotNegative}};

    Frame BurstAVFrame{ModeFrame, "BurstAVFrame", "Bursted Average", SetupSizes::ModePlace};
    TextField SensBurstDropOut{
        BurstAVFrame,
        "SensBurstDropOut",
        {"lblBurstDropOut", "Dropout", "\u00B5s", 7153, texts::DropOut, ranges::NotNegative}};

    Frame ScopeFrame{ModeFrame, "ScopeFrame", "Scope Mode", {120, 240, 5760, 5700}};
    TextField ScopePoints{ScopeFrame,
                          "ScopePoints",
                          {"lblScopePoints", "Points", "", 7154, texts::Points, ranges::Points}};
    TextField ScopeTime{
        ScopeFrame,
        "ScopeTime",
        {"lblScopeTime", "Meas Time", "ms", 7154, texts::TraceTime, ranges::Positive}};
    TextField ScopeTimeOffset{
        ScopeFrame,
        "ScopeTimeOffset",
        {"lblScopeTimeOffset", "Time Offset", "ms", 7154, texts::TraceOffset}};
    CheckField ScopeRealtime{
        ScopeFrame, "ScopeRealtime", {.helpTopic = 7154, .tooltip = texts::Realtime}, "Realtime"};
    CheckField ScopeAVGState{
        ScopeFrame, "ScopeAVGState", {.helpTopic = 7154, .tooltip = texts::Averaging}, "Averaging"};
    CheckField ScopeMovingAveraging{ScopeFrame,
                                    "ScopeMovingAveraging",
                                    {.helpTopic = 7154, .tooltip = texts::MovingAveraging},
                                    "Moving Averaging"};
    Label lblScopeAvgAuto{ScopeFrame, "lblScopeAvgAuto", "Auto:"};
    Label lblScopeAvgManual{ScopeFrame, "lblScopeAvgManual", "Manual:"};
    OptionField ScopeAvgMode{
        ScopeFrame,
        "ScopeAvgMode",
        {.name = "Averaging mode"},
        Options{{"ScopeAvgMode(0)", "Resolution", {}, texts::ByResolution},
                {"ScopeAvgMode(1)", "Fixed Noise: Content", {}, texts::ByNoise},
                {"ScopeAvgMode(2)", "Normal: Length", {}, texts::ByCount}}};
    TextField ScopeAvgResValue{ScopeFrame,
                               "ScopeAvgResValue",
                               {.helpTopic = 7154,
                                .tooltip = texts::Resolution,
                                .range = ranges::Digits,
                                .name = "Resolution"}};
    TextField ScopeAvgSNRValue{
        ScopeFrame,
        "ScopeAvgSNRValue",
        {"lblScopeAvgSNR", "", "dB", 7154, texts::FixedNoise, ranges::Positive, "Fixed noise"}};
    TextField ScopeAvgCount{ScopeFrame,
                            "ScopeAvgCount",
                            {.helpTopic = 7154,
                             .tooltip = texts::FilterLength,
                             .range = ranges::Count,
                             .name = "Filter length"}};
    TextField ScopeAvgMaxTime{ScopeFrame,
                              "ScopeAvgMaxTime",
                              {"lblScopeAvgMaxTime", "Max. Settl. Time", "s", 7154,
                               texts::TraceSettlingTime, ranges::NotNegative}};
    ListField ShowExclInTSlot{
        ScopeFrame,
        "ShowExclInTSlot",
        {"lblShowExcl", "Show exclude lines in Timeslot", "", 7154, texts::ShownExclusion}};
};

// Page 3
struct TriggerPage {
    explicit TriggerPage(Window& dialog)
        : TriggerFrame{dialog, "TriggerFrame", "Trigger", SetupSizes::Page} {
        TriggerFrame.visible = false;
        SensTriggerNow.visible = false;
    }

    Frame TriggerFrame;
    ListField SensTrigger{TriggerFrame,
                          "SensTrigger",
                          {"lblTriggerSource", "Source", "", 7121, texts::TriggerSource},
                          Items{{"Single"}, {"External"}, {"Hold"}, {"Immediate"}, {"Internal"}}};
    Button SensTriggerNow{
        TriggerFrame, "SensTriggerNow", "Trigger now", "", {.explanation = texts::TriggerNow}};
    OptionField SensTriggerSlope{
        TriggerFrame,
        "SensTriggerSlope",
        {"lblTriggerSlope", "Slope"},
        Options{{"SensTriggerSlope(0)", "Positiv", {}, texts::TriggerSlope},
                {"SensTriggerSlope(1)", "Negativ", {}, texts::TriggerSlope}}};
    TextField SensTriggerLevel{TriggerFrame,
                               "SensTriggerLevel",
                               {"lblTriggerLevel", "Level", "dBm", 7121, texts::TriggerLevel}};
    TextField SensTriggerHyst{
        TriggerFrame,
        "SensTriggerHyst",
        {"lblTriggerHyst", "Hyster.", "dB", 7121, texts::TriggerHysteresis, ranges::NotNegative}};
    TextField SensTriggerDelay{TriggerFrame,
                               "SensTriggerDelay",
                               {"lblTriggerDelay", "Delay", "ms", 7121, texts::TriggerDelay}};
    TextField SensTriggerHoldOff{
        TriggerFrame,
        "SensTriggerHoldOff",
        {"lblTriggerHoldOff", "Holdoff", "ms", 7121, texts::TriggerHoldOff, ranges::NotNegative}};
    TextField SensTriggerCount{
        TriggerFrame,
        "SensTriggerCount",
        {"lblTriggerCount", "Count", "", 7121, texts::TriggerCount, ranges::Count}};
};

// Page 4
struct CorrectionPage {
    explicit CorrectionPage(Window& dialog)
        : CorrectionFrame{dialog, "CorrectionFrame", "Correction", SetupSizes::Page} {
        CorrectionFrame.visible = false;
    }

    Frame CorrectionFrame;
    CheckField CorrOffsetEnable{
        CorrectionFrame, "CorrOffsetEnable", {.tooltip = texts::OffsetEnable}, "Offset"};
    TextField CorrOffsetValue{CorrectionFrame,
                              "CorrOffsetValue",
                              {"lblCorrOffset", "", "dB", 7131, texts::Offset, {}, "Offset"}};
    CheckField CorrFreqEnable{
        CorrectionFrame, "CorrFreqEnable", {.explanation = texts::FrequencyEnable}, "Frequency"};
    TextField CorrFreqValue{
        CorrectionFrame,
        "CorrFreqValue",
        {"lblCorrFreq", "", "MHz", 7131, texts::Frequency, ranges::Positive, "Frequency"}};
    CheckField CorrGammaEnabled{
        CorrectionFrame, "CorrGammaEnabled", {.tooltip = texts::GammaEnable}, "Gamma"};
    TextField CorrGammaAmp{
        CorrectionFrame,
        "CorrGammaAmp",
        {.tooltip = texts::GammaMagnitude, .range = ranges::Fraction, .name = "Gamma magnitude"}};
    TextField CorrGammaPhase{
        CorrectionFrame,
        "CorrGammaPhase",
        {"lblCorrGamma", "", "\u00B0", 0, texts::GammaPhase, {}, "Gamma phase"}};
    CheckField CorrDutyEnable{
        CorrectionFrame, "CorrDutyEnable", {.tooltip = texts::DutyEnable}, "Duty Cycle"};
    TextField CorrDutyValue{
        CorrectionFrame,
        "CorrDutyValue",
        {"lblCorrDuty", "", "%", 7131, texts::DutyCycle, ranges::Percent, "Duty cycle"}};
    CheckField CorrSParaEnabled{CorrectionFrame,
                                "CorrSParaEnabled",
                                {.helpTopic = 7131, .tooltip = texts::SParameters},
                                "Use S parameter correction"};
};

// Page 5
struct AdvancedPage {
    explicit AdvancedPage(Window& dialog)
        : AdvancedFrame{dialog, "AdvancedFrame", "Advanced Setup", SetupSizes::Page} {
        AdvancedFrame.visible = false;
    }

    Frame AdvancedFrame;
    Frame SamplingFrame{AdvancedFrame, "SamplingFrame", "Sampling", {120, 240, 5760, 1500}};
    CheckField SensInitCont{SamplingFrame,
                            "SensInitCont",
                            {.tooltip = texts::ContinuousMeasurement},
                            "Continuous Measurement"};
    OptionField SensSampFreq{
        SamplingFrame,
        "SensSampFreq",
        {"lblSampFreq", "Frequency"},
        Options{{"SensSampFreqHigh", "high", {.helpTopic = 7141}, texts::SamplingFrequency},
                {"SensSampFreqLow", "low", {.helpTopic = 7141}, texts::SamplingFrequency}}};
    Frame RangeFrame{AdvancedFrame, "RangeFrame", "Diode Range Selection", {120, 1860, 5760, 1500}};
    OptionField SensRange{
        RangeFrame,
        "SensRange",
        {.name = "Diode range"},
        Options{{"SensRangeAuto", "auto, cross-over:", {.helpTopic = 7141}, texts::RangeAuto},
                {"SensRangeManual", "manual", {.helpTopic = 7141}, texts::RangeManual}}};
    TextField SensRangeXOver{
        RangeFrame,
        "SensRangeXOver",
        {"lblRangeXOver", "", "dB", 7141, "", {}, "Cross-over level", texts::CrossOver}};
    ListField SensRangeValue{
        RangeFrame,
        "SensRangeValue",
        {.helpTopic = 7141, .name = "Diode path", .explanation = texts::RangePath},
        Items{{"path 1"}, {"path 2"}, {"path 3"}}};
};

}  // namespace kelvra::forms
