// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "platform/native.h"
#include "sensors/settings_fields.h"
#include "sensors/settings_file.h"
#include "support/temp_folder.h"

namespace kelvra::sensors {

using S = SensorSettings;

// A new block in a file: the keys with their defaults.
const std::string NewBlock =
    "[Sensor_MODE]\r\nMode=0\r\nContAVAper=.1\r\nContAvSmooth=1\r\nBuffAVBuffer=100\r\n"
    "BurstAVDropTol=.0001\r\nTSlotCount=8\r\nTSlotWidth=.001\r\nTSlotGraph=1\r\n"
    "TSlotTable=1\r\nTSlotExclDispInSlot=0\r\nTSlotExclStart=0\r\nTSlotExclStop=0\r\n"
    "ScopePoints=312\r\nScopeTime=.01\r\nScopeOffset=0\r\nScopeRealtime=0\r\n"
    "ScopeAVGEnable=1\r\nScopeAvgMode=0\r\nScopeAVGNormVal=3\r\nScopeAVGSNVal=.1\r\n"
    "ScopeAVGManCount=4\r\nScopeAVGMaxSetTime=4\r\nScopeAVGMoving=1\r\n"
    "[Sensor_AVER]\r\nEnable=1\r\nMode=0\r\nNormVal=3\r\nSNVal=.1\r\nManCount=4\r\n"
    "MaxSetTime=4\r\nSlotNum=4\r\nMoving=1\r\n"
    "[Sensor_TRIG]\r\nMode=3\r\nSlope=0\r\nCount=1\r\nDelay=0\r\nlevel=-30\r\nHyster=0\r\n"
    "HoldOff=0\r\n"
    "[Sensor_CORR]\r\nFreq=0\r\nFreqVal=50000000\r\nOffset=0\r\nOffsetVal=0\r\nGamma=0\r\n"
    "GammaAmp=1\r\nGammaPha=0\r\nDuty=0\r\nDutyVal=1\r\nSParaCor=0\r\n"
    "[Sensor_ADVA]\r\nRangeAuto=1\r\nRangeCross=0\r\nRangePath=2\r\nFreqHigh=1\r\n";

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
    std::error_code Write(S& settings) {
        return TransferSettings(settings, *disk_, path_, "Sensor", Transfer::Write);
    }

    test::TempFolder folder_;
    const std::string path_ = folder_.Path("k.ini");
    std::unique_ptr<platform::Files> disk_ = platform::NativeFiles();
};

TEST_F(SettingsFileTest, ABlockHasEveryFieldWithItsDefaultUnderFiveSections) {
    S settings = Read("");
    EXPECT_EQ(settings, DefaultSettings());
    settings.ContMeas = true;
    EXPECT_FALSE(Write(settings));
    EXPECT_FALSE(settings.ContMeas);
    EXPECT_EQ(folder_.Get("k.ini"), NewBlock);
    EXPECT_EQ(Read(NewBlock), DefaultSettings());
}

TEST_F(SettingsFileTest, WhateverIsSavedReadsBackTheSame) {
    S settings = DefaultSettings();
    settings.Mode = INT32_MIN;
    settings.TSlotExclStart = 1. / 3;
    settings.TSlotExclStop = 0.1 + 0.2;
    settings.ScopePoints = INT16_MIN;
    settings.ScopeTime = -1e-300;
    settings.AvgManCount = INT32_MAX;
    settings.AvgSlotNum = -1;
    settings.TrigDelay = 4.9e-324;
    settings.TrigLevel = 1.7976931348623157e308;
    settings.CorrGamma = settings.CorrDuty = true;
    settings.RangeAuto = settings.AvgMoving = false;
    EXPECT_FALSE(Write(settings));
    EXPECT_EQ(Read(folder_.Get("k.ini")), settings);
}

TEST_F(SettingsFileTest, ATextReadsAsWhatItMeansForItsField) {
    // clang-format off
    const struct {
        std::string bytes;  // after "[Sensor"
        SettingsMember member;
        double value;
    } cases[] = {
        {"_CORR]\nDuty=WAHR", &S::CorrDuty, 1}, {"_CORR]\nDuty=True", &S::CorrDuty, 1},
        {"_CORR]\nDuty=-1", &S::CorrDuty, 0}, {"_ADVA]\nFreqHigh=", &S::FreqHigh, 0},
        {"_MODE]\nTSlotCount=2.5", &S::TSlotCount, 2},
        {"_MODE]\nTSlotCount=garbage", &S::TSlotCount, 0},
        {"_MODE]\nTSlotCount=", &S::TSlotCount, 0},
        {"_MODE]\nTSlotCount=32767.5", &S::TSlotCount, 8},
        {"_AVER]\nManCount=2147483648", &S::AvgManCount, 4},
        {"_AVER]\nManCount=-2147483648", &S::AvgManCount, INT32_MIN},
        {"_TRIG]\nlevel= \"-.5\" ", &S::TrigLevel, -.5}, {"_TRIG]\nlevel=nan", &S::TrigLevel, 0},
        {"_TRIG]\nlevel=-7,5", &S::TrigLevel, -7},
        {"_TRIG]\nlevel=" + std::string(100'000, '9'), &S::TrigLevel, -30},
        {"_MODE\nMode=4\n]=[\n=\n[]\nSensor_MODE]\n\xFF\xFE[Sensor_TRIG", &S::Mode, 0},
    };
    // clang-format on
    for (const auto& c : cases)
        EXPECT_EQ(ValueOf(Read("[Sensor" + c.bytes), c.member), c.value) << c.bytes.substr(0, 50);
}

}  // namespace kelvra::sensors
