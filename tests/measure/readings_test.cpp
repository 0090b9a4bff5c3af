// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/readings.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/whole_kelvra.h"

namespace kelvra::measure {

class ReadingsTest : public testing::Test, public test::WholeKelvra {};

TEST_F(ReadingsTest, AReadingIsShownWhateverItIs) {
    const struct {
        double reading;
        std::int32_t count;
        const char* watts;
        const char* dbm;
        const char* shown;
    } cases[] = {
        {0.001, 4, "1.0000E-03", "0.000", "4"},
        {0, 1, "0.0000E+00", "-970.000", "1"},
        {-0.01, 65536, "-1.0000E-02", "10.000", "65536"},
        {NAN, -1, "NaN", "NaN", "-1"},
        {INFINITY, INT32_MIN, "Inf", "Inf", "-2147483648"},
        {-INFINITY, 0, "-Inf", "Inf", "0"},
        {4.9e-324, 4, "4.9407E-324", "-3203.062", "4"},
        {1e300, 4, "1.0000E+300", "3030.000", "4"},
    };
    StartWith(1);
    for (const auto& c : cases) {
        driver.reading = c.reading;
        driver.averagingCount = c.count;
        Measure(35);
        EXPECT_EQ(Cell(0, WattColumn).text, c.watts);
        EXPECT_EQ(Cell(0, DbmColumn).text, c.dbm);
        EXPECT_EQ(Cell(0, CountColumn).text, c.shown);
        EXPECT_EQ(Cell(0, SigmaColumn).text, std::isfinite(c.reading) ? "0.000" : "NaN");
        EXPECT_EQ(Cell(0, WattColumn).back, controls::White);
    }
    driver.reading = 0.001;
    Measure(1);
    EXPECT_EQ(program->table.SlotReadings[0][0], 0.001);
    EXPECT_NEAR(program->table.SlotReadings[0][1], 0, 1e-12);
}

TEST_F(ReadingsTest, SigmaAppearsWithTheThirtiethReadingOfAMeasurement) {
    StartWith(1);
    const auto& fetched = driver.count["psdrv_avg_getCount"];
    for (int run = 1; run <= 2; ++run) {
        driver.count["psdrv_avg_getCount"] = 0;
        fake.events.onRound = [&](int) {
            EXPECT_EQ(!Cell(0, SigmaColumn).text.empty(),
                      fetched >= 30 && program->state.starts == run)
                << fetched;
            if (fetched == 31) PressStop();
        };
        PressStart();
        EXPECT_EQ(Cell(0, SigmaColumn).text, "0.000");
    }
}

TEST_F(ReadingsTest, AnArrayHasAsManyValuesAsCame) {
    const struct {
        std::size_t values;
        std::optional<std::int32_t> count;
        std::size_t kept;
    } cases[] = {
        {312, {}, 312},       {1024, {}, 1024}, {1, {}, 1},           {0, {}, 1024}, {5, -3, 1024},
        {5, INT32_MIN, 1024}, {5, 2000, 1024},  {5, INT32_MAX, 1024}, {5, 3, 3},
    };
    StartWith(1);
    for (const std::int32_t mode : {2, 4}) {
        program->table[0].Settings.Mode = mode;
        for (const auto& c : cases) {
            driver.array.assign(c.values, 0.5);
            if (c.values > 1) driver.array[1] = NAN;
            driver.arrayCount = c.count;
            Measure(1);
            const auto& results = program->table[0].Results;
            ASSERT_EQ(results.size(), c.kept) << c.values;
            EXPECT_EQ(results[0], c.values > 0 ? 0.5 : 0);
        }
        EXPECT_EQ(Cell(0, WattColumn).back, controls::Grey);
    }
}

TEST_F(ReadingsTest, OnlyTheModesThatHaveAResultFetchOne) {
    const struct {
        std::int32_t mode;
        int scalars, arrays;
        bool slotData, traceData;
    } cases[] = {
        {0, 1, 0, false, false}, {1, 0, 0, false, false}, {2, 0, 1, true, false},
        {3, 1, 0, false, false}, {4, 0, 1, false, true},  {7, 0, 0, false, false},
    };
    StartWith(1);
    for (const auto& c : cases) {
        auto& entry = program->table[0];
        entry.Settings.Mode = c.mode;
        entry.NewTSlotData = entry.NewScopeData = false;
        driver.count.clear();
        Measure(1);
        EXPECT_EQ(driver.Count("psdrv_meass_fetchMeasurement"), c.scalars) << c.mode;
        EXPECT_EQ(driver.Count("psdrv_meass_fetchBufferMeasurement"), c.arrays) << c.mode;
        EXPECT_EQ(entry.NewTSlotData, c.slotData) << c.mode;
        EXPECT_EQ(entry.NewScopeData, c.traceData) << c.mode;
        EXPECT_EQ(program->state.TimeSlotModeActive, c.slotData);
        EXPECT_EQ(program->forms.scopeDisp.Visible, c.traceData);
    }
}

TEST_F(ReadingsTest, TheLogHasTheValueInBothLines) {
    fake.computer.commandLine = "debug";
    StartWith(1);
    Measure(1);
    const std::string log = folder.Get("DebugKelvra.txt");
    for (const char* line :
         {"psdrv_meass_fetchMeasurement(  12, 1,  0 ) STARTING",
          "psdrv_meass_fetchMeasurement ->  .001 ) FINISHED",
          "psdrv_avg_getCount(  12, 1,  0 ) STARTING", "psdrv_avg_getCount ->  4 ) FINISHED",
          "psdrv_chans_initiate(  12 ) STARTING", "psdrv_chans_initiate -> TeskSession FINISHED",
          "psdrv_chan_isMeasurementComplete(  12,  1,  0 ) STARTING",
          "psdrv_chan_isMeasurementComplete ->  1 ) FINISHED", "psdrv_close(  12 ) STARTING",
          "psdrv_close -> FINISHED"})
        EXPECT_NE(log.find(std::string(":") + line + "\r\n"), std::string::npos) << line;
}

}  // namespace kelvra::measure
