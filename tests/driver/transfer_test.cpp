// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/transfer.h"

#include <algorithm>

#include "driver/driver_fixture.h"

namespace kelvra::driver {

using sensors::SensorSettings;

class TransferTest : public DriverTest {
protected:
    TransferTest() { state_.instrumentHandle = 12; }

    // The calls as "name value value; name value; ", without "psdrv_", session and channel.
    std::string Sent(const SensorSettings& settings, const char* name = "A") {
        table_[0].settings = settings;
        table_[0].logicalName = name;
        driver_.calls.clear();
        transfer_.ConfigureSensor(0);
        std::string sent;
        for (const std::string& call : driver_.calls) {
            if (call.starts_with("psdrv_error_")) continue;
            const auto open = call.find('(');
            EXPECT_EQ(call.substr(open, 6), "(12, 1") << call;
            std::string values = call.substr(open + 6);
            std::erase_if(values, [](char c) { return c == ',' || c == ')'; });
            sent += call.substr(6, open - 6) + values + "; ";
        }
        return sent;
    }

    // The labels of the errors when every call fails.
    std::string Complaints(const SensorSettings& settings) {
        driver_.status = [](std::string_view name, int) {
            return name.find("error") < name.size() ? 0 : -7;
        };
        Sent(settings);
        driver_.status = nullptr;
        std::string labels;
        const std::string& text = table_[0].lastErrorText;
        for (std::size_t at = 0, end; (end = text.find("\r\n", at)) != std::string::npos;
             at = end + 2)
            if (text[at] != ' ') labels += text.substr(at, end - at) + "; ";
        return labels;
    }
};

const std::string Averaging =
    "avg_setEnabled 1; avg_setAutoEnabled 1; avg_setAutoType 0; avg_setAutoResolution 3; "
    "avg_setAutoMaxMeasuringTime 4; avg_setTerminalControl 0; ";
const std::string Corrections =
    "chan_setCorrectionFrequency 5e+07; corr_setOffsetEnabled 0; corr_setSParamDeviceEnabled 0; "
    "chan_setSourceGammaCorrEnabled 0; corr_setDutyCycleEnabled 0; ";
const std::string Range =
    "range_setAutoEnabled 1; range_setCrossoverLevel 0; chan_setSamplingFrequency 1; "
    "chan_setInitContinuousEnabled 0; ";
const std::string Trigger =
    "trigger_setSource 3; trigger_setSlope 0; trigger_setDelay 0; trigger_setCount 1; "
    "trigger_setLevel 1e-06; trigger_setHysteresis 0; trigger_setHoldoff 0; ";
const std::string Continuous =
    "chan_mode 0; chan_setContAvBufferedEnabled 0; chan_setContAvAperture 0.1; "
    "chan_setContAvSmoothingEnabled 1; ";

TEST_F(TransferTest, SendsTheGroupsThatTheModelHas) {
    const std::pair<const char*, std::string> models[] = {{"A", Range + Trigger + Continuous},
                                                          {"my ps-102", ""},
                                                          {"1023", Range},
                                                          {"ps-10", Range + Trigger + Continuous}};
    for (const auto& [name, groups] : models)
        EXPECT_EQ(Sent(sensors::DefaultSettings(), name),
                  "chan_reset; " + Averaging + Corrections + groups)
            << name;
}

TEST_F(TransferTest, SendsWhatEachSettingAsksFor) {
    // What is changed; what is sent together, in this order.
    // clang-format off
    const std::pair<void (*)(SensorSettings&), const char*> cases[] = {
        {[](auto& s) { s.AvgEnable = false; },
         "reset; avg_setEnabled 0; chan_setCorrectionFrequency"},
        {[](auto& s) { s.AvgNormVal = 2.5; s.Mode = 2; s.AvgMoving = false; },
         "avg_setAutoResolution 2; avg_setAutoMaxMeasuringTime 4; avg_setSlot 4; "
         "avg_setTerminalControl 1; chan_setCorr"},
        {[](auto& s) { s.AvgMode = 1; },
         "avg_setEnabled 1; avg_setAutoEnabled 1; avg_setAutoType 1; avg_setAutoNoiseSignalRatio "
         "0.1; avg_setAutoMaxMeasuringTime 4; avg_setTerminalControl 0; chan_setCorr"},
        {[](auto& s) { s.AvgMode = 1; s.Mode = 2; s.AvgSlotNum = -1; },
         "avg_setAutoMaxMeasuringTime 4; avg_setSlot -1; avg_setTerminalControl 0; "},
        {[](auto& s) { s.AvgMode = 2; s.Mode = 2; s.AvgManCount = 70000; },
         "avg_setEnabled 1; avg_setAutoEnabled 0; avg_setCount 70000; avg_setTerminalControl 0; "
         "chan_setCorr"},
        {[](auto& s) { s.AvgNormVal = 1e300; }, "avg_setAutoResolution 2147483647; "},
        {[](auto& s) { s.CorrFreqVal = 7; }, "chan_setCorrectionFrequency 5e+07; "},
        {[](auto& s) {
             s.CorrFreq = s.CorrOffset = s.CorrGamma = s.CorrDuty = s.CorrSParaCor = true;
             s.CorrFreqVal = 7; s.CorrOffsetVal = -2; s.CorrGammaPha = 90;
         },
         "chan_setCorrectionFrequency 7; corr_setOffsetEnabled 1; corr_setOffset -2; "
         "corr_setSParamDeviceEnabled 1; chan_setSourceGammaCorrEnabled 1; "
         "chan_setSourceGammaMagnitude 1; chan_setSourceGammaPhase 90; corr_setDutyCycleEnabled 1; "
         "corr_setDutyCycle 1; range_"},
        {[](auto& s) { s.RangeAuto = s.FreqHigh = false; s.ContMeas = true; },
         "range_setAutoEnabled 0; range_setRange 2; chan_setSamplingFrequency 2; "
         "chan_setInitContinuousEnabled 1; trigger_"},
        {[](auto& s) { s.Mode = 1; },
         "chan_mode 1; chan_setContAvBufferedEnabled 0; chan_setContAvBufferedEnabled 1; "
         "chan_setContAvBufferSize 100; $"},
        {[](auto& s) { s.Mode = 2; s.TSlotExclStop = 1e-4; },
         "chan_setContAvBufferedEnabled 0; tslot_configureTimeSlot 8 0.001; "
         "timing_configureExclude 0 1e-04; $"},
        {[](auto& s) { s.Mode = 3; },
         "chan_setContAvBufferedEnabled 0; chan_setBurstDropoutTolerance 1e-04; $"},
        {[](auto& s) { s.Mode = 4; },
         "chan_setContAvBufferedEnabled 0; scope_setAverageEnabled 1; scope_setAutoEnabled 1; "
         "scope_setAutoType 0; scope_setAutoResolution 3; scope_setAutoMaxMeasuringTime 4; "
         "scope_setAverageTerminalControl 0; scope_setPoints 312; scope_setTime 0.01; "
         "scope_setOffsetTime 0; scope_setRealtimeEnabled 0; $"},
        {[](auto& s) { s.Mode = 4; s.ScopeAvgMode = 1; s.ScopeAVGEnable = false; },
         "scope_setAverageEnabled 0; scope_setAutoEnabled 1; scope_setAutoType 1; "
         "scope_setAutoNoiseSignalRatio 0.1; scope_setAutoMaxMeasuringTime 4; scope_setAverageT"},
        {[](auto& s) { s.Mode = 4; s.ScopeAvgMode = 2; s.ScopeAVGMoving = false; },
         "scope_setAutoEnabled 0; scope_setAverageCount 4; scope_setAverageTerminalControl 1; "},
        {[](auto& s) { s.Mode = 5; }, "chan_mode 5; chan_setContAvBufferedEnabled 0; $"},
    };
    // clang-format on
    for (const auto& [change, together] : cases) {
        SensorSettings settings = sensors::DefaultSettings();
        change(settings);
        const std::string sent = Sent(settings) + "$";
        EXPECT_NE(sent.find(together), std::string::npos) << together << "\n in " << sent;
    }
}

TEST_F(TransferTest, EachCallHasItsTwoLinesInTheLog) {
    SensorSettings settings = sensors::DefaultSettings();
    log_.timeStamps = true;
    Sent(settings);
    settings.AvgMode = 1;
    settings.CorrFreqVal = .1;
    Sent(settings);
    const Lines lines = LogLines();
    EXPECT_EQ(lines.size(), 2 * (27U + 27U));
    EXPECT_EQ(lines[0], "00,043,200.000:psdrv_chan_reset(12, 1) STARTING");
    EXPECT_EQ(lines[1], "00,043,200.000:psdrv_chan_reset -> FINISHED");
    const std::pair<std::string, std::string> cases[] = {
        {"avg_setEnabled(  12,  1,  1 )", "avg_setEnabled ->"},
        {"avg_setAutoType(  12,  1, 0)", "avg_setAutoType ->"},
        {"avg_setAutoType(  12,  1, 1 )", "avg_setAutoType ->"},
        {"avg_setAutoMaxMeasuringTime (  12,  1,  4 )", "avg_setAutoMaxMeasuringTime  ->"},
        {"avg_setAutoMaxMeasuringTime(  12,  1,  4 )", "avg_setAutoMaxMeasuringTime ->"},
        {"corr_setSParamDeviceEnabled(  12,  1,  0 )",
         "corr_setSParamDeviceEnabled(  12,  1,  0 )"},
        {"trigger_setLevel(  12,  1,  1E-06 )", "trigger_setLevel ->"},
        {"chan_setContAvAperture(  12,  1,  .1 )", "chan_setContAvAperture ->"},
    };
    const std::string header = "00,043,200.000: 12, 1               psdrv_";
    for (const auto& [begin, end] : cases) {
        auto start = std::find(lines.begin(), lines.end(), header + begin + " STARTING");
        ASSERT_NE(start, lines.end()) << begin;
        EXPECT_EQ(*++start, header + end + " FINISHED");
    }
    EXPECT_EQ(std::count(lines.begin(), lines.end(), header + "trigger_setDelay"), 2);
}

TEST_F(TransferTest, GoesOnAfterErrorsAndCollectsThemUnderTheirLabels) {
    const std::string common =
        "Average Terminal Control; Correction Frequency; Correction Offset OFF; Correction S "
        "parameter; Correction Gamma OFF; Correction Duty Cycle OFF; Range Auto ON; Range "
        "Crossover Level; Sampling Frequency; Continuous Mode; Trigger Source; Trigger Slope; "
        "Trigger Delay; Trigger Count; Trigger Level; Trigger Hysteresis; Trigger HoldOff; Mode; "
        "ContAV Buffered OFF; ";
    const std::string resolution =
        "Average Auto Enabled; Average Type Normal; Average Resolution; Average Max MeasTime; ";
    const std::string noise =
        "Average Auto Enabled; Average Type SN; Average SN Value; Average Max MeasTime; ";
    const std::string count = "Average Auto Disable; Average Count; ";
    const std::tuple<std::int32_t, std::int16_t, std::string> cases[] = {
        {0, 0, resolution + common + "ContAV aperture; ContAV smoothing; "},
        {2, 0,
         resolution + "Average Time Slot; " + common +
             "Time Slot Configuration; Time Slot Exclude Configuration; "},
        {1, 1, noise + common + "BufferedAV; BufferedAV Size; "},
        {3, 2, count + common + "Burst Dropout Tolerance; "},
        {4, 0,
         resolution + common +
             "Scope Average; Scope Average Auto ON; Scope Average Type Normal; "
             "Scope Average Normal Resolution; Scope Average Max MeasTime; "},
        {4, 2, count + common + "Scope Average; "},
    };
    for (const auto& [mode, averaging, labels] : cases) {
        SensorSettings settings = sensors::DefaultSettings();
        settings.Mode = mode;
        settings.AvgMode = settings.ScopeAvgMode = averaging;
        EXPECT_EQ(Complaints(settings), labels) << mode << averaging;
    }
}

TEST_F(TransferTest, ShowsItsErrorsAtOnceAndAgainAtItsEndElseClearsTheStrip) {
    table_[0].settingsChanged = true;
    table_[0].lastErrorText = "of an earlier transfer";
    Fail("psdrv_trigger_setCount", 7);
    driver_.onCall = [this](std::string_view) { EXPECT_TRUE(state_.configRunning); };
    transfer_.ConfigureSensor(0);
    const std::string error = "failed 0 Trigger Count\r\n  bad value\r\n  queue empty\r\n";
    EXPECT_EQ(told_, (Lines{error, error}));
    EXPECT_FALSE(table_[0].settingsChanged);
    EXPECT_FALSE(state_.configRunning);
    EXPECT_EQ(log_.header, "");
    EXPECT_EQ(marks_, (Lines{"begins 0", "ends 0"}));
    told_.clear();
    driver_.status = nullptr;
    transfer_.ConfigureSensor(0);
    EXPECT_EQ(told_, Lines{"well 0"});
}

}  // namespace kelvra::driver
