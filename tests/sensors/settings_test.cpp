// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "platform/native.h"
#include "sensors/settings_fields.h"
#include "sensors/settings_file.h"
#include "support/faulty_files.h"
#include "support/temp_folder.h"
#include "util/random.h"

namespace kelvra::sensors {

using S = SensorSettings;

struct ExpectedField {
    const char* suffix;
    const char* key;
    const char* text;  // of the default in a file
    double value;
    SettingsMember member;
};

// In the order of a file.
// clang-format off
const ExpectedField Expected[] = {
    {"_MODE", "Mode", "0", 0, &S::Mode},
    {"_MODE", "ContAVAper", ".1", 0.1, &S::ContAVAper},
    {"_MODE", "ContAvSmooth", "1", 1, &S::ContAvSmooth},
    {"_MODE", "BuffAVBuffer", "100", 100, &S::BuffAVBuffer},
    {"_MODE", "BurstAVDropTol", ".0001", 0.0001, &S::BurstAVDropTol},
    {"_MODE", "TSlotCount", "8", 8, &S::TSlotCount},
    {"_MODE", "TSlotWidth", ".001", 0.001, &S::TSlotWidth},
    {"_MODE", "TSlotGraph", "1", 1, &S::TSlotGraph},
    {"_MODE", "TSlotTable", "1", 1, &S::TSlotTable},
    {"_MODE", "TSlotExclDispInSlot", "0", 0, &S::TSlotExclDispInSlot},
    {"_MODE", "TSlotExclStart", "0", 0, &S::TSlotExclStart},
    {"_MODE", "TSlotExclStop", "0", 0, &S::TSlotExclStop},
    {"_MODE", "ScopePoints", "312", 312, &S::ScopePoints},
    {"_MODE", "ScopeTime", ".01", 0.01, &S::ScopeTime},
    {"_MODE", "ScopeOffset", "0", 0, &S::ScopeOffset},
    {"_MODE", "ScopeRealtime", "0", 0, &S::ScopeRealtime},
    {"_MODE", "ScopeAVGEnable", "1", 1, &S::ScopeAVGEnable},
    {"_MODE", "ScopeAvgMode", "0", 0, &S::ScopeAvgMode},
    {"_MODE", "ScopeAVGNormVal", "3", 3, &S::ScopeAVGNormVal},
    {"_MODE", "ScopeAVGSNVal", ".1", 0.1, &S::ScopeAVGSNVal},
    {"_MODE", "ScopeAVGManCount", "4", 4, &S::ScopeAVGManCount},
    {"_MODE", "ScopeAVGMaxSetTime", "4", 4, &S::ScopeAVGMaxSetTime},
    {"_MODE", "ScopeAVGMoving", "1", 1, &S::ScopeAVGMoving},
    {"_AVER", "Enable", "1", 1, &S::AvgEnable},
    {"_AVER", "Mode", "0", 0, &S::AvgMode},
    {"_AVER", "NormVal", "3", 3, &S::AvgNormVal},
    {"_AVER", "SNVal", ".1", 0.1, &S::AvgSNVal},
    {"_AVER", "ManCount", "4", 4, &S::AvgManCount},
    {"_AVER", "MaxSetTime", "4", 4, &S::AvgMaxSetTime},
    {"_AVER", "SlotNum", "4", 4, &S::AvgSlotNum},
    {"_AVER", "Moving", "1", 1, &S::AvgMoving},
    {"_TRIG", "Mode", "3", 3, &S::TrigSource},
    {"_TRIG", "Slope", "0", 0, &S::TrigSlope},
    {"_TRIG", "Count", "1", 1, &S::TrigCount},
    {"_TRIG", "Delay", "0", 0, &S::TrigDelay},
    {"_TRIG", "level", "-30", -30, &S::TrigLevel},
    {"_TRIG", "Hyster", "0", 0, &S::TrigHyster},
    {"_TRIG", "HoldOff", "0", 0, &S::TrigHoldOff},
    {"_CORR", "Freq", "0", 0, &S::CorrFreq},
    {"_CORR", "FreqVal", "50000000", 5e7, &S::CorrFreqVal},
    {"_CORR", "Offset", "0", 0, &S::CorrOffset},
    {"_CORR", "OffsetVal", "0", 0, &S::CorrOffsetVal},
    {"_CORR", "Gamma", "0", 0, &S::CorrGamma},
    {"_CORR", "GammaAmp", "1", 1, &S::CorrGammaAmp},
    {"_CORR", "GammaPha", "0", 0, &S::CorrGammaPha},
    {"_CORR", "Duty", "0", 0, &S::CorrDuty},
    {"_CORR", "DutyVal", "1", 1, &S::CorrDutyVal},
    {"_CORR", "SParaCor", "0", 0, &S::CorrSParaCor},
    {"_ADVA", "RangeAuto", "1", 1, &S::RangeAuto},
    {"_ADVA", "RangeCross", "0", 0, &S::RangeCross},
    {"_ADVA", "RangePath", "2", 2, &S::RangePath},
    {"_ADVA", "FreqHigh", "1", 1, &S::FreqHigh},
};
// clang-format on

double ValueOf(const S& settings, const SettingsMember& member) {
    return std::visit([&](auto m) { return static_cast<double>(settings.*m); }, member);
}

class SettingsFileTest : public testing::Test {
protected:
    S Read(const std::string& bytes) {
        folder_.Put("k.ini", bytes);
        S settings{};
        settings.ContMeas = true;
        EXPECT_FALSE(TransferSettings(settings, *disk_, path_, "Sensor", Transfer::Read));
        return settings;
    }
    std::error_code Write(platform::Files& files, S settings) {
        return TransferSettings(settings, files, path_, "Sensor", Transfer::Write);
    }

    test::TempFolder folder_;
    const std::string path_ = folder_.Path("k.ini");
    std::unique_ptr<platform::Files> disk_ = platform::NativeFiles();
};

TEST_F(SettingsFileTest, ANewBlockHasTheDefaultOfEveryField) {
    EXPECT_EQ(SettingsFields().size(), std::size(Expected) + 1);
    const S fromNothing = Read("");
    for (const S& settings : {DefaultSettings(), fromNothing}) {
        for (const auto& field : Expected)
            EXPECT_EQ(ValueOf(settings, field.member), field.value) << field.suffix << field.key;
        EXPECT_FALSE(settings.ContMeas);
    }
}

TEST_F(SettingsFileTest, ASavedBlockHasItsKeysInOrderUnderFiveSections) {
    std::string expected, section;
    for (const auto& field : Expected) {
        if (section != field.suffix) expected += "[Sensor" + (section = field.suffix) + "]\r\n";
        expected += std::string(field.key) + "=" + field.text + "\r\n";
    }
    S settings = DefaultSettings();
    settings.ContMeas = true;
    EXPECT_FALSE(TransferSettings(settings, *disk_, path_, "Sensor", Transfer::Write));
    EXPECT_EQ(folder_.Get("k.ini"), expected);
    EXPECT_FALSE(settings.ContMeas);
}

// Some value of the field's type; of a double also one that takes 17 digits.
void SetAny(S& settings, const SettingsMember& member, util::Random& random) {
    std::visit(
        [&](auto m) {
            using Value = std::remove_reference_t<decltype(settings.*m)>;
            if constexpr (std::is_same_v<Value, bool>)
                settings.*m = random.Next() < 0.5F;
            else
                settings.*m = static_cast<Value>((random.Next() - 0.5) * 65'000 / 3);
        },
        member);
}

TEST_F(SettingsFileTest, WhateverIsSavedReadsBackTheSame) {
    util::Random random(5);
    for (int i = 0; i < 20; ++i) {
        S settings = DefaultSettings();
        for (const auto& field : Expected) SetAny(settings, field.member, random);
        EXPECT_FALSE(Write(*disk_, settings));
        S back{};
        EXPECT_FALSE(TransferSettings(back, *disk_, path_, "Sensor", Transfer::Read));
        EXPECT_EQ(back, settings) << i;
    }
}

TEST_F(SettingsFileTest, ATextReadsAsWhatItMeansForItsField) {
    const struct {
        const char* section;
        const char* line;
        SettingsMember member;
        double value;
    } cases[] = {
        {"_CORR", "Duty=1", &S::CorrDuty, 1},
        {"_CORR", "Duty=WAHR", &S::CorrDuty, 1},
        {"_CORR", "Duty=wahr", &S::CorrDuty, 1},
        {"_CORR", "Duty=True", &S::CorrDuty, 1},
        {"_CORR", "Duty=yes", &S::CorrDuty, 0},
        {"_CORR", "Duty=-1", &S::CorrDuty, 0},
        {"_ADVA", "FreqHigh=", &S::FreqHigh, 0},
        {"_ADVA", "FreqHigh=0", &S::FreqHigh, 0},
        {"_mode", "tslotcount=12abc", &S::TSlotCount, 12},
        {"_MODE", "TSlotCount=2.5", &S::TSlotCount, 2},
        {"_MODE", "TSlotCount=garbage", &S::TSlotCount, 0},
        {"_MODE", "TSlotCount=", &S::TSlotCount, 0},
        {"_MODE", "TSlotCount=32767.5", &S::TSlotCount, 8},
        {"_MODE", "TSlotCount=-40000", &S::TSlotCount, 8},
        {"_MODE", "TSlotCount=1e400", &S::TSlotCount, 8},
        {"_AVER", "ManCount=2147483648", &S::AvgManCount, 4},
        {"_AVER", "ManCount=-2147483648", &S::AvgManCount, INT32_MIN},
        {"_TRIG", "level=-1e400", &S::TrigLevel, -30},
        {"_TRIG", "level= \"-.5\" ", &S::TrigLevel, -0.5},
        {"_TRIG", "level=nan", &S::TrigLevel, 0},
        {"_TRIG", "level=-7,5", &S::TrigLevel, -7},
    };
    for (const auto& c : cases) {
        const S settings = Read("[Sensor" + std::string(c.section) + "]\n" + c.line + "\n");
        EXPECT_EQ(ValueOf(settings, c.member), c.value) << c.line;
    }
}

TEST_F(SettingsFileTest, HostileBytesLeaveEveryOtherFieldAtItsDefault) {
    std::string noise = "[Sensor_MODE\nMode=4\n]=[\n=\n[]\nSensor_MODE]\n";
    noise += std::string(3, '\0') + "\xFF\xFE[Sensor_TRIG" + std::string(100'000, '=');
    EXPECT_EQ(Read(noise).TrigLevel, -30);
    EXPECT_EQ(Read("[Sensor_TRIG]\nlevel=" + std::string(100'000, '9')).TrigLevel, -30);
}

TEST_F(SettingsFileTest, AFailedSaveLeavesTheOldFileOrTheNewOneWhole) {
    const std::string before = "; mine\r\n[Sensor_TRIG]\r\nlevel=-12\r\nother=x\r\n";
    test::FaultyFiles faulty(*disk_);
    S settings = DefaultSettings();
    settings.TrigLevel = 3;
    folder_.Put("k.ini", before);
    ASSERT_FALSE(Write(faulty, settings));
    const std::string after = folder_.Get("k.ini");
    const int operations = faulty.Operations();
    ASSERT_GT(operations, 7);
    EXPECT_EQ(after.find(before.substr(0, before.find("-12")) + "3\r\nother=x\r\n"), 0U);
    for (int n = 1; n <= operations; ++n) {
        folder_.Put("k.ini", before);
        faulty.Plan(n, test::FaultyFiles::Fault::Fail);
        EXPECT_TRUE(Write(faulty, settings)) << n;
        const std::string left = folder_.Get("k.ini");
        EXPECT_TRUE(left == before || (n == operations && left == after)) << n << ": " << left;
        EXPECT_EQ(folder_.Names().size(), 1U) << n;
    }
}

}  // namespace kelvra::sensors
