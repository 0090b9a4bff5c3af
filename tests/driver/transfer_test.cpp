// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/transfer.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

#include "driver/driver_fixture.h"

namespace kelvra::driver {

using sensors::SensorSettings;

class TransferTest : public DriverTest {
protected:
    TransferTest() { state_.instrumentHandle = 12; }

    // Every call fails, so that each line is a call as sent, and the label of its error.
    // The name, which is the user's, says nothing.
    std::string Sent(const SensorSettings& settings, const std::string& type = "A") {
        table_[0].settings = settings;
        table_[0].sensorId = type + ";PS-102";
        table_[0].logicalName = "102 MHz";
        lines_.clear();
        driver_.status = [](std::string_view, int) { return -7; };
        driver_.onCall = [this](std::string_view function) {
            if (!function.starts_with("psdrv_error_")) lines_.push_back(driver_.calls.back());
        };
        transfer_.ConfigureSensor(0);
        driver_.status = nullptr;
        driver_.onCall = nullptr;
        std::string sent;
        for (const std::string& line : lines_) sent += line + "\n";
        return sent;
    }
    // What is new in the text is of the last call; at its end the transfer reports all once more.
    void SensorFailed(int slot, const std::string& text) override {
        const std::string before = notices_.empty() ? "" : notices_.back();
        DriverTest::SensorFailed(slot, text);
        if (lines_.empty() || notices_.back() == before) return;
        const std::string errors = "\r\n" + table_[slot].lastErrorText;
        const auto words = errors.rfind("\r\n  bad value");
        const auto label = errors.rfind("\r\n", words - 1) + 2;
        constexpr std::size_t labelColumn = 60;
        lines_.back().resize(labelColumn, ' ');
        lines_.back() += errors.substr(label, words - label);
    }

    // "lines 2 to 5" are those of continuous.txt.
    static Lines Expected(const std::string& file) {
        Lines lines;
        std::ifstream text(EXPECTED_FOLDER "/" + file);
        for (std::string line; std::getline(text, line);) {
            int first = 0, last = 0;
            if (std::sscanf(line.c_str(), "lines %d to %d", &first, &last) != 2) {
                lines.push_back(line);
                continue;
            }
            const Lines same = Expected("continuous.txt");
            lines.insert(lines.end(), same.begin() + first - 1, same.begin() + last);
        }
        return lines;
    }

    Lines lines_;
};

TEST_F(TransferTest, SendsTheSettingsOfEachModeInOrderAndReportsErrorsUnderTheirLabels) {
    const struct {
        const char* file;
        void (*change)(SensorSettings&);
    } cases[] = {
        {"continuous.txt", [](auto&) {}},
        {"buffered.txt", [](auto& s) { s.Mode = 1, s.AvgMode = 1; }},
        {"time_slots.txt",
         [](auto& s) {
             s.Mode = 2, s.AvgMoving = false, s.TSlotExclStop = 1e-4;
             s.CorrFreq = s.CorrOffset = s.CorrGamma = s.CorrDuty = s.CorrSParaCor = true;
             s.CorrFreqVal = 7, s.CorrOffsetVal = -2, s.CorrGammaPha = 90;
         }},
        {"burst.txt",
         [](auto& s) {
             s.Mode = 3, s.AvgMode = 2, s.AvgManCount = 70000;
             s.RangeAuto = s.FreqHigh = false, s.ContMeas = true;
         }},
        {"trace.txt", [](auto& s) { s.Mode = 4; }},
    };
    for (const auto& [file, change] : cases) {
        SensorSettings settings = sensors::DefaultSettings();
        change(settings);
        Sent(settings);
        EXPECT_EQ(lines_, Expected(file)) << file;
    }
}

TEST_F(TransferTest, SendsWhatEachSettingAsksFor) {
    const struct {
        void (*change)(SensorSettings&);
        const char* together;  // calls that follow each other
    } cases[] = {
        {[](auto& s) { s.AvgEnable = false; },
         "avg_setEnabled 0, chan_setCorrectionFrequency 5e+07"},
        {[](auto& s) { s.AvgNormVal = 2.5; }, "avg_setAutoResolution 2"},
        {[](auto& s) { s.AvgNormVal = 1e300; }, "avg_setAutoResolution 2147483647"},
        {[](auto& s) { s.AvgMode = 1, s.Mode = 2, s.AvgSlotNum = -1; },
         "avg_setAutoMaxMeasuringTime 4, avg_setSlot -1, avg_setTerminalControl 0"},
        {[](auto& s) { s.CorrFreqVal = 7; }, "chan_setCorrectionFrequency 5e+07"},
        {[](auto& s) { s.Mode = 4, s.ScopeAvgMode = 1, s.ScopeAVGEnable = false; },
         "scope_setAverageEnabled 0, scope_setAutoEnabled 1, scope_setAutoType 1, "
         "scope_setAutoNoiseSignalRatio 0.1, scope_setAutoMaxMeasuringTime 4, "
         "scope_setAverageTerminalControl 0"},
        {[](auto& s) { s.Mode = 4, s.ScopeAvgMode = 2, s.ScopeAVGMoving = false; },
         "scope_setAutoEnabled 0, scope_setAverageCount 4, scope_setAverageTerminalControl 1"},
        {[](auto& s) { s.Mode = 5; }, "chan_mode 5, chan_setContAvBufferedEnabled 0, END"},
    };
    for (const auto& [change, together] : cases) {
        SensorSettings settings = sensors::DefaultSettings();
        change(settings);
        Sent(settings);
        std::string calls;
        for (const std::string& line : lines_) {
            const auto open = line.find("(12, 1, ");
            if (open == std::string::npos) continue;
            const auto value = open + std::string_view("(12, 1, ").size();
            calls +=
                line.substr(6, open - 6) + " " + line.substr(value, line.find(')') - value) + ", ";
        }
        calls += "END";
        EXPECT_NE(calls.find(together), std::string::npos) << together << "\n in " << calls;
    }
}

TEST_F(TransferTest, SendsTheGroupsThatTheModelHas) {
    const struct {
        const char* type;
        bool range, triggerAndMode;
    } cases[] = {{"A", true, true},
                 {"my ps-102", false, false},
                 {"1023", true, false},
                 {"ps-10", true, true}};
    for (const auto& [type, range, triggerAndMode] : cases) {
        const std::string sent = Sent(sensors::DefaultSettings(), type);
        const auto has = [&](const char* part) { return sent.find(part) != std::string::npos; };
        EXPECT_TRUE(has("psdrv_avg_setEnabled(") && has("psdrv_corr_setDutyCycleEnabled(")) << type;
        EXPECT_EQ(has("psdrv_range_"), range) << type;
        EXPECT_EQ(has("psdrv_chan_setInitContinuousEnabled("), range) << type;
        EXPECT_EQ(has("psdrv_trigger_"), triggerAndMode) << type;
        EXPECT_EQ(has("psdrv_chan_mode("), triggerAndMode) << type;
        EXPECT_EQ(has("psdrv_chan_setContAv"), triggerAndMode) << type;
    }
}

TEST_F(TransferTest, EachCallHasItsTwoLinesInTheLog) {
    SensorSettings settings = sensors::DefaultSettings();
    log_.timeStamps = true;
    table_[0].settings = settings;
    transfer_.ConfigureSensor(0);
    settings.AvgMode = 1;
    settings.CorrFreqVal = .1;
    table_[0].settings = settings;
    transfer_.ConfigureSensor(0);
    const Lines lines = LogLines();
    EXPECT_EQ(lines.size(), 2 * (27U + 27U));
    EXPECT_EQ(lines[0], "00,043,200.000:psdrv_chan_reset(12, 1) STARTING");
    EXPECT_EQ(lines[1], "00,043,200.000:psdrv_chan_reset -> FINISHED");
    const struct {
        std::string start, finish;
    } cases[] = {
        {"avg_setEnabled(  12,  1,  1 ) STARTING", "avg_setEnabled -> FINISHED"},
        {"avg_setAutoType(  12,  1, 0) STARTING", "avg_setAutoType -> FINISHED"},
        {"avg_setAutoType(  12,  1, 1 ) STARTING", "avg_setAutoType -> FINISHED"},
        {"avg_setAutoMaxMeasuringTime (  12,  1,  4 ) STARTING",
         "avg_setAutoMaxMeasuringTime  -> FINISHED"},
        {"avg_setAutoMaxMeasuringTime(  12,  1,  4 ) STARTING",
         "avg_setAutoMaxMeasuringTime -> FINISHED"},
        {"corr_setSParamDeviceEnabled(  12,  1,  0 ) STARTING",
         "corr_setSParamDeviceEnabled(  12,  1,  0 ) FINISHED"},
        {"trigger_setDelay", "trigger_setDelay -> FINISHED"},
        {"trigger_setLevel(  12,  1,  1E-06 ) STARTING", "trigger_setLevel -> FINISHED"},
        {"chan_setContAvAperture(  12,  1,  .1 ) STARTING", "chan_setContAvAperture -> FINISHED"},
    };
    const std::string header = "00,043,200.000: 12, 1               psdrv_";
    for (const auto& [start, finish] : cases) {
        auto line = std::find(lines.begin(), lines.end(), header + start);
        ASSERT_NE(line, lines.end()) << start;
        EXPECT_EQ(*++line, header + finish);
    }
}

TEST_F(TransferTest, ReportsItsErrorsAtOnceAndAgainAtItsEndOrThatTheSensorIsWell) {
    table_[0].settingsChanged = true;
    table_[0].lastErrorText = "of an earlier transfer";
    Fail("psdrv_trigger_setCount", 7);
    driver_.onCall = [this](std::string_view) { EXPECT_TRUE(state_.configRunning); };
    transfer_.ConfigureSensor(0);
    const std::string error = "failed 0: Trigger Count\r\n  bad value\r\n  queue empty";
    EXPECT_EQ(notices_, (Lines{error, error}));
    EXPECT_FALSE(table_[0].settingsChanged);
    EXPECT_FALSE(state_.configRunning);
    EXPECT_EQ(log_.header, "");
    EXPECT_EQ(marks_, (Lines{"begins 0", "ends 0"}));
    notices_.clear();
    driver_.status = nullptr;
    transfer_.ConfigureSensor(0);
    EXPECT_EQ(notices_, Lines{"well 0"});
}

}  // namespace kelvra::driver
