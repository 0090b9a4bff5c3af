// SPDX-License-Identifier: GPL-3.0-or-later
// The setup dialog: a header with sensor, mode and the input-error strip, and five pages below it.
// Texts and marks start with the settings of a new sensor, in the unit that the dialog shows.
// Filling, storing and enabling are rules elsewhere; a close only hides the dialog.
#pragma once

#include <string>
#include <vector>

#include "controls/kinds.h"
#include "controls/list.h"

namespace kelvra::forms {

struct SetupForm : controls::Window {
    static constexpr int HeaderWidth = 6000;
    static constexpr int HeaderHeight = 1935;  // with the input-error strip closed
    static constexpr int PageHeight = 6055;
    static constexpr controls::Geometry Page{0, HeaderHeight, HeaderWidth, PageHeight};
    static constexpr controls::Geometry ModePlace{120, 240, HeaderWidth - 240, 2400};

    explicit SetupForm(controls::Changes& changes)
        : Window(changes, "SetupForm", "Settings",
                 {60, 60, HeaderWidth + 100, HeaderHeight + PageHeight}) {
        for (controls::Frame* page : {&ModeFrame, &TriggerFrame, &CorrectionFrame, &AdvancedFrame})
            page->visible = false;
        for (controls::Frame* mode : {&BufferAVFrame, &TimeSlotFrame, &BurstAVFrame, &ScopeFrame})
            mode->visible = false;
        chkAutoScaleScope.visible = false;
        txtMinScope.visible = false;
        txtMaxScope.visible = false;
        SensTriggerNow.visible = false;
    }

    using Options = std::vector<controls::OptionGroup::Option>;
    using Captions = std::vector<std::string>;

    // Header
    controls::Frame Frame1{*this, "Frame1", "", {0, 0, HeaderWidth, HeaderHeight}};
    controls::Label lblSensor{Frame1, "lblSensor", "SENSOR"};
    controls::List SensSelect{Frame1, "SensSelect"};
    controls::Label lblMode{Frame1, "lblMode", "Mode"};
    controls::List SensMode{
        Frame1,
        "SensMode",
        {{"ContAv", 0}, {"Buffered Cont Avg", 1}, {"Timeslot", 2}, {"Burst", 3}, {"Scope", 4}},
        0};
    controls::OptionGroup PageSelect{Frame1, "PageSelect",
                                     Options{{"Option1", "General Settings"},
                                             {"Option2", "Mode Settings"},
                                             {"Option3", "Trigger"},
                                             {"Option4", "Correction"},
                                             {"Option5", "Advanced Setup"}}};
    controls::Frame InputErrorFrame{
        Frame1, "InputErrorFrame", "Input Error Active", {0, HeaderHeight, HeaderWidth, 900}};
    controls::Label lblInputError{InputErrorFrame, "lblInputError", "Input Error"};

    // Page 1: general
    controls::Frame GeneralFrame{*this, "GeneralFrame", "General Settings", Page};
    controls::Label lblName{GeneralFrame, "lblName", "Name"};
    controls::TextBox SensLogicalName{GeneralFrame, "SensLogicalName"};
    controls::Label lblType{GeneralFrame, "lblType", "Type"};
    controls::Label SensTypeInfo{GeneralFrame, "SensTypeInfo"};

    controls::Frame AverageFrame{
        GeneralFrame, "AverageFrame", "Averaging (excl. Scope)", {120, 960, 5760, 2400}};
    controls::CheckBox SensAVGState{AverageFrame, "SensAVGState", "Averaging", true};
    controls::CheckBox MovingAveraging{AverageFrame, "MovingAveraging", "Moving Averaging", true};
    controls::Label lblAvgAuto{AverageFrame, "lblAvgAuto", "Auto:"};
    controls::Label lblAvgManual{AverageFrame, "lblAvgManual", "Manual:"};
    controls::OptionGroup SensAvgMode{
        AverageFrame, "SensAvgMode",
        Captions{"Resolution", "Fixed Noise: Content", "Normal: Length"}};
    controls::TextBox SensAvgResValue{AverageFrame, "SensAvgResValue", "3"};
    controls::TextBox SensAvgSNRValue{AverageFrame, "SensAvgSNRValue", "0.1"};
    controls::TextBox SensAvgCount{AverageFrame, "SensAvgCount", "4"};
    controls::Label lblAvgMaxTime{AverageFrame, "lblAvgMaxTime", "Max. Settl. Time"};
    controls::TextBox SensAvgMaxTime{AverageFrame, "SensAvgMaxTime", "4"};
    controls::Label lblAvgSlot{AverageFrame, "lblAvgSlot", "Ref Timeslot #"};
    controls::TextBox SensAvgSlot{AverageFrame, "SensAvgSlot", "4"};

    controls::Frame GraphFrame{
        GeneralFrame, "GraphFrame", "Graph Settings", {120, 3480, 5760, 1200}};
    controls::CheckBox chkAutoScaleScope{GraphFrame, "chkAutoScaleScope",
                                         "Autoscale scope display"};
    controls::CheckBox chkAutoScaleTime{GraphFrame, "chkAutoScaleTime", "Autoscale Time Display"};
    controls::Label lblMinimum{GraphFrame, "lblMinimum", "Minimum"};
    controls::TextBox txtMinScope{GraphFrame, "txtMinScope", "-65"};
    controls::TextBox txtMinTime{GraphFrame, "txtMinTime", "-65"};
    controls::Label lblMinimumUnit{GraphFrame, "lblMinimumUnit", "dBm"};
    controls::Label lblMaximum{GraphFrame, "lblMaximum", "Maximum"};
    controls::TextBox txtMaxScope{GraphFrame, "txtMaxScope", "5"};
    controls::TextBox txtMaxTime{GraphFrame, "txtMaxTime", "5"};
    controls::Label lblMaximumUnit{GraphFrame, "lblMaximumUnit", "dBm"};

    controls::Frame ActionFrame{
        GeneralFrame, "ActionFrame", "Sensor Commands", {120, 4800, 5760, 1140}};
    controls::Button SensorZero{ActionFrame, "SensorZero", "", "zeroSensPic"};
    controls::Button cmdZeroAll{ActionFrame, "cmdZeroAll", "", "zeroSensAllPic"};
    controls::Button SensSelfTest{ActionFrame, "SensSelfTest", "", "selfTestPic"};
    controls::Button SensInfo{ActionFrame, "SensInfo", "", "sensInfoPic"};

    // Page 2: one frame a mode, all at the same place
    controls::Frame ModeFrame{*this, "ModeFrame", "Mode Settings", Page};
    controls::Frame ContAVFrame{ModeFrame, "ContAVFrame", "Continuous Average", ModePlace};
    controls::Label lblContAVTime{ContAVFrame, "lblContAVTime", "Window"};
    controls::TextBox SensContAVTime{ContAVFrame, "SensContAVTime", "100"};
    controls::Label lblContAVTimeUnit{ContAVFrame, "lblContAVTimeUnit", "ms"};
    controls::CheckBox SensContAVSmooth{ContAVFrame, "SensContAVSmooth", "Smoothing", true};

    controls::Frame BufferAVFrame{ModeFrame, "BufferAVFrame", "Buffered Average", ModePlace};
    controls::Label lblBuffAVSize{BufferAVFrame, "lblBuffAVSize", "buffer size"};
    controls::TextBox SensBuffAVSize{BufferAVFrame, "SensBuffAVSize", "100"};

    controls::Frame TimeSlotFrame{ModeFrame, "TimeSlotFrame", "Time Slot", ModePlace};
    controls::Label lblSlotCount{TimeSlotFrame, "lblSlotCount", "No. of Timeslots"};
    controls::TextBox SensSlotCount{TimeSlotFrame, "SensSlotCount", "8"};
    controls::Label lblSlotWidth{TimeSlotFrame, "lblSlotWidth", "Nominal Width"};
    controls::TextBox SensSlotWidth{TimeSlotFrame, "SensSlotWidth", "1"};
    controls::Label lblSlotWidthUnit{TimeSlotFrame, "lblSlotWidthUnit", "ms"};
    controls::Label lblSlotExclStart{TimeSlotFrame, "lblSlotExclStart", "Exclude from Start"};
    controls::TextBox SensSlotExclStart{TimeSlotFrame, "SensSlotExclStart", "0"};
    controls::Label lblSlotExclStartUnit{TimeSlotFrame, "lblSlotExclStartUnit", "ms"};
    controls::Label lblSlotExclStop{TimeSlotFrame, "lblSlotExclStop", "Exclude from End"};
    controls::TextBox SensSlotExclStop{TimeSlotFrame, "SensSlotExclStop", "0"};
    controls::Label lblSlotExclStopUnit{TimeSlotFrame, "lblSlotExclStopUnit", "ms"};

    controls::Frame BurstAVFrame{ModeFrame, "BurstAVFrame", "Bursted Average", ModePlace};
    controls::Label lblBurstDropOut{BurstAVFrame, "lblBurstDropOut", "Dropout"};
    controls::TextBox SensBurstDropOut{BurstAVFrame, "SensBurstDropOut", "100"};
    controls::Label lblBurstDropOutUnit{BurstAVFrame, "lblBurstDropOutUnit", "\u00B5s"};

    controls::Frame ScopeFrame{ModeFrame, "ScopeFrame", "Scope Mode", {120, 240, 5760, 5700}};
    controls::Label lblScopePoints{ScopeFrame, "lblScopePoints", "Points"};
    controls::TextBox ScopePoints{ScopeFrame, "ScopePoints", "312"};
    controls::Label lblScopeTime{ScopeFrame, "lblScopeTime", "Meas Time"};
    controls::TextBox ScopeTime{ScopeFrame, "ScopeTime", "10"};
    controls::Label lblScopeTimeUnit{ScopeFrame, "lblScopeTimeUnit", "ms"};
    controls::Label lblScopeTimeOffset{ScopeFrame, "lblScopeTimeOffset", "Time Offset"};
    controls::TextBox ScopeTimeOffset{ScopeFrame, "ScopeTimeOffset", "0"};
    controls::Label lblScopeTimeOffsetUnit{ScopeFrame, "lblScopeTimeOffsetUnit", "ms"};
    controls::CheckBox ScopeRealtime{ScopeFrame, "ScopeRealtime", "Realtime"};
    controls::CheckBox ScopeAVGState{ScopeFrame, "ScopeAVGState", "Averaging", true};
    controls::CheckBox ScopeMovingAveraging{ScopeFrame, "ScopeMovingAveraging", "Moving Averaging",
                                            true};
    controls::Label lblScopeAvgAuto{ScopeFrame, "lblScopeAvgAuto", "Auto:"};
    controls::Label lblScopeAvgManual{ScopeFrame, "lblScopeAvgManual", "Manual:"};
    controls::OptionGroup ScopeAvgMode{
        ScopeFrame, "ScopeAvgMode",
        Captions{"Resolution", "Fixed Noise: Content", "Normal: Length"}};
    controls::TextBox ScopeAvgResValue{ScopeFrame, "ScopeAvgResValue", "3"};
    controls::TextBox ScopeAvgSNRValue{ScopeFrame, "ScopeAvgSNRValue", "0.1"};
    controls::TextBox ScopeAvgCount{ScopeFrame, "ScopeAvgCount", "4"};
    controls::Label lblScopeAvgMaxTime{ScopeFrame, "lblScopeAvgMaxTime", "Max. Settl. Time"};
    controls::TextBox ScopeAvgMaxTime{ScopeFrame, "ScopeAvgMaxTime", "4"};
    controls::Label lblShowExcl{ScopeFrame, "lblShowExcl", "Show exclude lines in Timeslot"};
    controls::List ShowExclInTSlot{ScopeFrame, "ShowExclInTSlot"};

    // Page 3: trigger
    controls::Frame TriggerFrame{*this, "TriggerFrame", "Trigger", Page};
    controls::Label lblTriggerSource{TriggerFrame, "lblTriggerSource", "Source"};
    controls::List SensTrigger{TriggerFrame,
                               "SensTrigger",
                               {{"Single"}, {"External"}, {"Hold"}, {"Immediate"}, {"Internal"}},
                               3};
    controls::Button SensTriggerNow{TriggerFrame, "SensTriggerNow", "Trigger now"};
    controls::Label lblTriggerSlope{TriggerFrame, "lblTriggerSlope", "Slope"};
    controls::OptionGroup SensTriggerSlope{TriggerFrame, "SensTriggerSlope",
                                           Captions{"Positiv", "Negativ"}};
    controls::Label lblTriggerLevel{TriggerFrame, "lblTriggerLevel", "Level"};
    controls::TextBox SensTriggerLevel{TriggerFrame, "SensTriggerLevel", "-30"};
    controls::Label lblTriggerLevelUnit{TriggerFrame, "lblTriggerLevelUnit", "dBm"};
    controls::Label lblTriggerHyst{TriggerFrame, "lblTriggerHyst", "Hyster."};
    controls::TextBox SensTriggerHyst{TriggerFrame, "SensTriggerHyst", "0"};
    controls::Label lblTriggerHystUnit{TriggerFrame, "lblTriggerHystUnit", "dB"};
    controls::Label lblTriggerDelay{TriggerFrame, "lblTriggerDelay", "Delay"};
    controls::TextBox SensTriggerDelay{TriggerFrame, "SensTriggerDelay", "0"};
    controls::Label lblTriggerDelayUnit{TriggerFrame, "lblTriggerDelayUnit", "ms"};
    controls::Label lblTriggerHoldOff{TriggerFrame, "lblTriggerHoldOff", "Holdoff"};
    controls::TextBox SensTriggerHoldOff{TriggerFrame, "SensTriggerHoldOff", "0"};
    controls::Label lblTriggerHoldOffUnit{TriggerFrame, "lblTriggerHoldOffUnit", "ms"};
    controls::Label lblTriggerCount{TriggerFrame, "lblTriggerCount", "Count"};
    controls::TextBox SensTriggerCount{TriggerFrame, "SensTriggerCount", "1"};

    // Page 4: correction
    controls::Frame CorrectionFrame{*this, "CorrectionFrame", "Correction", Page};
    controls::CheckBox CorrOffsetEnable{CorrectionFrame, "CorrOffsetEnable", "Offset"};
    controls::TextBox CorrOffsetValue{CorrectionFrame, "CorrOffsetValue", "0"};
    controls::Label lblCorrOffsetUnit{CorrectionFrame, "lblCorrOffsetUnit", "dB"};
    controls::CheckBox CorrFreqEnable{CorrectionFrame, "CorrFreqEnable", "Frequency", true};
    controls::TextBox CorrFreqValue{CorrectionFrame, "CorrFreqValue", "50"};
    controls::Label lblCorrFreqUnit{CorrectionFrame, "lblCorrFreqUnit", "MHz"};
    controls::CheckBox CorrGammaEnabled{CorrectionFrame, "CorrGammaEnabled", "Gamma"};
    controls::TextBox CorrGammaAmp{CorrectionFrame, "CorrGammaAmp", "1"};
    controls::TextBox CorrGammaPhase{CorrectionFrame, "CorrGammaPhase", "0"};
    controls::Label lblCorrGammaUnit{CorrectionFrame, "lblCorrGammaUnit", "\u00B0"};
    controls::CheckBox CorrDutyEnable{CorrectionFrame, "CorrDutyEnable", "Duty Cycle"};
    controls::TextBox CorrDutyValue{CorrectionFrame, "CorrDutyValue", "1"};
    controls::Label lblCorrDutyUnit{CorrectionFrame, "lblCorrDutyUnit", "%"};
    controls::CheckBox CorrSParaEnabled{CorrectionFrame, "CorrSParaEnabled",
                                        "Use S parameter correction"};

    // Page 5: advanced
    controls::Frame AdvancedFrame{*this, "AdvancedFrame", "Advanced Setup", Page};
    controls::Frame SamplingFrame{
        AdvancedFrame, "SamplingFrame", "Sampling", {120, 240, 5760, 1500}};
    controls::CheckBox SensInitCont{SamplingFrame, "SensInitCont", "Continuous Measurement"};
    controls::Label lblSampFreq{SamplingFrame, "lblSampFreq", "Frequency"};
    controls::OptionGroup SensSampFreq{
        SamplingFrame, "SensSampFreq",
        Options{{"SensSampFreqHigh", "high"}, {"SensSampFreqLow", "low"}}};
    controls::Frame RangeFrame{
        AdvancedFrame, "RangeFrame", "Diode Range Selection", {120, 1860, 5760, 1500}};
    controls::OptionGroup SensRange{
        RangeFrame, "SensRange",
        Options{{"SensRangeAuto", "auto, cross-over:"}, {"SensRangeManual", "manual"}}};
    controls::TextBox SensRangeXOver{RangeFrame, "SensRangeXOver", "0"};
    controls::Label lblRangeXOverUnit{RangeFrame, "lblRangeXOverUnit", "dB"};
    controls::List SensRangeValue{
        RangeFrame, "SensRangeValue", {{"path 1"}, {"path 2"}, {"path 3"}}, 2};
};

}  // namespace kelvra::forms
