// SPDX-License-Identifier: GPL-3.0-or-later
// The header of the setup dialog and its five pages. A field is one line: its name, its labels and
// help topic, and what its kind needs besides. Its content comes from a sensor's settings.
#pragma once

#include <string>
#include <vector>

#include "forms/kinds.h"

namespace kelvra::forms {

// Twips.
struct SetupSizes {
    static constexpr int HeaderWidth = 6000;
    static constexpr int HeaderHeight = 1935;  // with the input-error strip closed
    static constexpr int PageHeight = 6055;
    static constexpr controls::Geometry Page{0, HeaderHeight, HeaderWidth, PageHeight};
    static constexpr controls::Geometry ModePlace{120, 240, HeaderWidth - 240, 2400};
};

using Captions = std::vector<std::string>;
using Items = std::vector<List::Item>;
using Options = std::vector<OptionMember>;

struct SetupHeader {
    explicit SetupHeader(Window& dialog)
        : Frame1{dialog, "Frame1", "", {0, 0, SetupSizes::HeaderWidth, SetupSizes::HeaderHeight}} {}

    Frame Frame1;
    ListField SensSelect{Frame1, "SensSelect", {"lblSensor", "SENSOR", "", 7110}};
    ListField SensMode{
        Frame1,
        "SensMode",
        {"lblMode", "Mode", "", 7110},
        Items{
            {"ContAv", 0}, {"Buffered Cont Avg", 1}, {"Timeslot", 2}, {"Burst", 3}, {"Scope", 4}}};
    Button cmdCopySettings{Frame1,
                           "cmdCopySettings",
                           "Copy to...",
                           "",
                           {.name = "Copy settings to",
                            .explanation = "Gives all settings of this sensor to others."}};
    OptionGroup PageSelect{Frame1, "PageSelect",
                           Options{{"Option1", "General Settings", 7111},
                                   {"Option2", "Mode Settings", 7150},
                                   {"Option3", "Trigger", 7121},
                                   {"Option4", "Correction", 7131},
                                   {"Option5", "Advanced Setup", 7141}}};
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
    }

    Frame GeneralFrame;
    TextField SensLogicalName{GeneralFrame, "SensLogicalName", {"lblName", "Name", "", 7111}};
    Label lblType{GeneralFrame, "lblType", "Type"};
    Label SensTypeInfo{GeneralFrame, "SensTypeInfo"};

    Frame AverageFrame{
        GeneralFrame, "AverageFrame", "Averaging (excl. Scope)", {120, 960, 5760, 2400}};
    CheckField SensAVGState{AverageFrame, "SensAVGState", {}, "Averaging"};
    CheckField MovingAveraging{AverageFrame, "MovingAveraging", {}, "Moving Averaging"};
    Label lblAvgAuto{AverageFrame, "lblAvgAuto", "Auto:"};
    Label lblAvgManual{AverageFrame, "lblAvgManual", "Manual:"};
    OptionField SensAvgMode{AverageFrame,
                            "SensAvgMode",
                            {},
                            Captions{"Resolution", "Fixed Noise: Content", "Normal: Length"}};
    TextField SensAvgResValue{AverageFrame, "SensAvgResValue", {}};
    TextField SensAvgSNRValue{AverageFrame, "SensAvgSNRValue", {}};
    TextField SensAvgCount{AverageFrame, "SensAvgCount", {}};
    TextField SensAvgMaxTime{AverageFrame, "SensAvgMaxTime", {"lblAvgMaxTime", "Max. Settl. Time"}};
    TextField SensAvgSlot{AverageFrame, "SensAvgSlot", {"lblAvgSlot", "Ref Timeslot #"}};

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
        ContAVFrame, "SensContAVTime", {"lblContAVTime", "Window", "ms", 7151}};
    CheckField SensContAVSmooth{ContAVFrame, "SensContAVSmooth", {.helpTopic = 7151}, "Smoothing"};

    Frame BufferAVFrame{ModeFrame, "BufferAVFrame", "Buffered Average", SetupSizes::ModePlace};
    TextField SensBuffAVSize{
        BufferAVFrame, "SensBuffAVSize", {"lblBuffAVSize", "buffer size", "", 7153}};

    Frame TimeSlotFrame{ModeFrame, "TimeSlotFrame", "Time Slot", SetupSizes::ModePlace};
    TextField SensSlotCount{
        TimeSlotFrame, "SensSlotCount", {"lblSlotCount", "No. of Timeslots", "", 7152}};
    TextField SensSlotWidth{
        TimeSlotFrame, "SensSlotWidth", {"lblSlotWidth", "Nominal Width", "ms", 7152}};
    TextField SensSlotExclStart{
        TimeSlotFrame, "SensSlotExclStart", {"lblSlotExclStart", "Exclude from Start", "ms", 7152}};
    TextField SensSlotExclStop{
        TimeSlotFrame, "SensSlotExclStop", {"lblSlotExclStop", "Exclude from End", "ms", 7152}};

    Frame BurstAVFrame{ModeFrame, "BurstAVFrame", "Bursted Average", SetupSizes::ModePlace};
    TextField SensBurstDropOut{
        BurstAVFrame, "SensBurstDropOut", {"lblBurstDropOut", "Dropout", "\u00B5s", 7153}};

    Frame ScopeFrame{ModeFrame, "ScopeFrame", "Scope Mode", {120, 240, 5760, 5700}};
    TextField ScopePoints{ScopeFrame, "ScopePoints", {"lblScopePoints", "Points", "", 7154}};
    TextField ScopeTime{ScopeFrame, "ScopeTime", {"lblScopeTime", "Meas Time", "ms", 7154}};
    TextField ScopeTimeOffset{
        ScopeFrame, "ScopeTimeOffset", {"lblScopeTimeOffset", "Time Offset", "ms", 7154}};
    CheckField ScopeRealtime{ScopeFrame, "ScopeRealtime", {.helpTopic = 7154}, "Realtime"};
    CheckField ScopeAVGState{ScopeFrame, "ScopeAVGState", {.helpTopic = 7154}, "Averaging"};
    CheckField ScopeMovingAveraging{
        ScopeFrame, "ScopeMovingAveraging", {.helpTopic = 7154}, "Moving Averaging"};
    Label lblScopeAvgAuto{ScopeFrame, "lblScopeAvgAuto", "Auto:"};
    Label lblScopeAvgManual{ScopeFrame, "lblScopeAvgManual", "Manual:"};
    OptionField ScopeAvgMode{ScopeFrame,
                             "ScopeAvgMode",
                             {},
                             Captions{"Resolution", "Fixed Noise: Content", "Normal: Length"}};
    TextField ScopeAvgResValue{ScopeFrame, "ScopeAvgResValue", {.helpTopic = 7154}};
    TextField ScopeAvgSNRValue{ScopeFrame, "ScopeAvgSNRValue", {.helpTopic = 7154}};
    TextField ScopeAvgCount{ScopeFrame, "ScopeAvgCount", {.helpTopic = 7154}};
    TextField ScopeAvgMaxTime{
        ScopeFrame, "ScopeAvgMaxTime", {"lblScopeAvgMaxTime", "Max. Settl. Time", "", 7154}};
    ListField ShowExclInTSlot{
        ScopeFrame, "ShowExclInTSlot", {"lblShowExcl", "Show exclude lines in Timeslot", "", 7154}};
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
                          {"lblTriggerSource", "Source", "", 7121},
                          Items{{"Single"}, {"External"}, {"Hold"}, {"Immediate"}, {"Internal"}}};
    Button SensTriggerNow{TriggerFrame, "SensTriggerNow", "Trigger now"};
    OptionField SensTriggerSlope{TriggerFrame,
                                 "SensTriggerSlope",
                                 {"lblTriggerSlope", "Slope"},
                                 Captions{"Positiv", "Negativ"}};
    TextField SensTriggerLevel{
        TriggerFrame, "SensTriggerLevel", {"lblTriggerLevel", "Level", "dBm", 7121}};
    TextField SensTriggerHyst{
        TriggerFrame, "SensTriggerHyst", {"lblTriggerHyst", "Hyster.", "dB", 7121}};
    TextField SensTriggerDelay{
        TriggerFrame, "SensTriggerDelay", {"lblTriggerDelay", "Delay", "ms", 7121}};
    TextField SensTriggerHoldOff{
        TriggerFrame, "SensTriggerHoldOff", {"lblTriggerHoldOff", "Holdoff", "ms", 7121}};
    TextField SensTriggerCount{
        TriggerFrame, "SensTriggerCount", {"lblTriggerCount", "Count", "", 7121}};
};

// Page 4
struct CorrectionPage {
    explicit CorrectionPage(Window& dialog)
        : CorrectionFrame{dialog, "CorrectionFrame", "Correction", SetupSizes::Page} {
        CorrectionFrame.visible = false;
    }

    Frame CorrectionFrame;
    CheckField CorrOffsetEnable{CorrectionFrame, "CorrOffsetEnable", {}, "Offset"};
    TextField CorrOffsetValue{
        CorrectionFrame, "CorrOffsetValue", {"lblCorrOffset", "", "dB", 7131}};
    CheckField CorrFreqEnable{CorrectionFrame, "CorrFreqEnable", {}, "Frequency"};
    TextField CorrFreqValue{CorrectionFrame, "CorrFreqValue", {"lblCorrFreq", "", "MHz", 7131}};
    CheckField CorrGammaEnabled{CorrectionFrame, "CorrGammaEnabled", {}, "Gamma"};
    TextField CorrGammaAmp{CorrectionFrame, "CorrGammaAmp", {}};
    TextField CorrGammaPhase{CorrectionFrame, "CorrGammaPhase", {"lblCorrGamma", "", "\u00B0"}};
    CheckField CorrDutyEnable{CorrectionFrame, "CorrDutyEnable", {}, "Duty Cycle"};
    TextField CorrDutyValue{CorrectionFrame, "CorrDutyValue", {"lblCorrDuty", "", "%", 7131}};
    CheckField CorrSParaEnabled{
        CorrectionFrame, "CorrSParaEnabled", {.helpTopic = 7131}, "Use S parameter correction"};
};

// Page 5
struct AdvancedPage {
    explicit AdvancedPage(Window& dialog)
        : AdvancedFrame{dialog, "AdvancedFrame", "Advanced Setup", SetupSizes::Page} {
        AdvancedFrame.visible = false;
    }

    Frame AdvancedFrame;
    Frame SamplingFrame{AdvancedFrame, "SamplingFrame", "Sampling", {120, 240, 5760, 1500}};
    CheckField SensInitCont{SamplingFrame, "SensInitCont", {}, "Continuous Measurement"};
    OptionField SensSampFreq{
        SamplingFrame,
        "SensSampFreq",
        {"lblSampFreq", "Frequency"},
        Options{{"SensSampFreqHigh", "high", 7141}, {"SensSampFreqLow", "low", 7141}}};
    Frame RangeFrame{AdvancedFrame, "RangeFrame", "Diode Range Selection", {120, 1860, 5760, 1500}};
    OptionField SensRange{
        RangeFrame,
        "SensRange",
        {},
        Options{{"SensRangeAuto", "auto, cross-over:", 7141}, {"SensRangeManual", "manual", 7141}}};
    TextField SensRangeXOver{RangeFrame, "SensRangeXOver", {"lblRangeXOver", "", "dB", 7141}};
    ListField SensRangeValue{RangeFrame,
                             "SensRangeValue",
                             {.helpTopic = 7141},
                             Items{{"path 1"}, {"path 2"}, {"path 3"}}};
};

}  // namespace kelvra::forms
