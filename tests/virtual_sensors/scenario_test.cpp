// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <string>

#include "scenario_reader.h"

namespace kelvra::virtual_sensors {
namespace {

TEST(ScenarioReader, ReadsWhatNoScriptHasInItsScenario) {
    const ScenarioResult result = ReadScenario(
        "seed 7 # a comment\r\nzero 10 us\nexternal 5 ms\nsource g -3 dBm\n\n"
        "sensor PS-101 A1\n  name \"left # one\"\n  index 4\n  noise 0.1 dB\n  noise 2 nW\n"
        "sensor PS-118 B2\n  unplugged\n"
        "fault psdrv_avg_setCount from 3 channel 2 status -5 \"no such count\"",
        "s");
    const Scenario& s = result.scenario;
    ASSERT_EQ(result.error, "");
    EXPECT_EQ(s.seed, 7U);
    EXPECT_DOUBLE_EQ(s.zeroDuration, 1e-5);
    EXPECT_EQ(s.externalPeriod, 0.005);
    ASSERT_EQ(s.sensors.size(), 2U);
    EXPECT_EQ(s.sensors[0].name, "left # one");
    EXPECT_TRUE(s.sensors[0].noiseDb == 0.1 && s.sensors[0].noiseW == 2e-9);
    EXPECT_TRUE(s.sensors[1].index == 5 && !s.sensors[1].plugged);
    ASSERT_EQ(s.faults.size(), 1U);
    EXPECT_TRUE(s.faults[0].first == 3 && s.faults[0].channel == 2 && s.faults[0].number == -5);
}

TEST(ScenarioReader, NamesThePlaceOfWhatIsWrongAndThenHasNoSensors) {
    const std::string start = "source g 0 dBm\nsensor PS-101 1\n";
    const struct {
        std::string line, error;
    } cases[] = {
        {"beep", "unknown statement 'beep'"},
        {"sensor PS-101", "the serial number is missing"},
        {"sensor PS-102 1", "this serial number is there already"},
        {"sees h 0 dB", "no source 'h' above this line"},
        {"pulse width 1 us", "'period' expected"},
        {"pulse period 0.9 us width 0.1 us", "the period is no number or out of range"},
        {"pulse period 1 s width 1.1 s", "the pulse is longer than its period"},
        {"pulse period 9 s width 1 s rise 1 s", "the edges are longer than the pulse"},
        {"pulse period 9 s width 1 s overshoot 1 %", "an overshoot needs a rise time"},
        {"pulse period 9 s width 1 s off 1 dB",
         "the level between the pulses is no number or out of range"},
        {"frame slot 1 ms levels", "the level of the slot is missing"},
        {"frame slot 1 ms levels 0 off", "'dB' expected after the last level"},
        {"frame slot 1 ms levels 0 nan dB", "the level of the slot is no number or out of range"},
        {"frame slot 501 s levels 0 off dB", "the frame is longer than 1000 s"},
        {"at 1 s unplug 2", "no sensor '2' above this line"},
        {"at call 0 of psdrv_init plug 1", "the number of the call is no number or out of range"},
        {"fault psdrv_nothing status 1", "unknown function 'psdrv_nothing'"},
        {"fault psdrv_init", "'status', 'count', 'value' or 'unended' expected"},
        {"seed 1 2", "'2' is too much"},
        {"name \"x", "a text without its closing quote"},
        {std::string("seed \0\xff", 7), "the seed is no number or out of range"},
    };
    for (const auto& [line, error] : cases) {
        const ScenarioResult result = ReadScenario(start + line + "\n", "file");
        EXPECT_EQ(result.error, "file:3: " + error) << line;
        EXPECT_TRUE(result.scenario.sensors.empty()) << line;
    }
    EXPECT_EQ(ReadScenario("index 1", "file").error, "file:1: no sensor above this line");
    EXPECT_NE(LoadScenario(testing::TempDir()).error.find("cannot be read"), std::string::npos);
    EXPECT_NE(LoadScenario("no such file").error.find("cannot be opened"), std::string::npos);
}

}  // namespace
}  // namespace kelvra::virtual_sensors
