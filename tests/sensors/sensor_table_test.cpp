// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensors/sensor_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "util/levels.h"
#include "util/number_text.h"
#include "util/random.h"

namespace kelvra::sensors {

TEST(SensorTable, KeepsWhatItHoldsAndAnEmptySpareElement) {
    SensorTable table;
    table.Resize(8);
    EXPECT_EQ(table.entries.size(), 9U);
    table[1].logicalName = "B";
    table[2].logicalName = "C";
    table.slotReadings[1] = {1, 30};
    table.currentSensor = 2;
    table.Resize(2);
    EXPECT_EQ(table[1].logicalName, "B");
    EXPECT_EQ(table.slotReadings[1][1], 30);
    EXPECT_EQ(table[2].logicalName, "");
    EXPECT_EQ(table.currentSensor, 0);
    for (const int refused : {0, -1, 40'000}) table.Resize(refused);
    EXPECT_EQ(table.sensorSlotCount, 2);
    const TableLock outer(table);
    const TableLock inner(table);
    EXPECT_DEBUG_DEATH(table.Resize(8), "locks");
    EXPECT_EQ(table.entries.size(), 3U);
}

TEST(SensorTable, SwapsAllThatBelongsToASlot) {
    SensorTable table;
    table.Resize(4);
    table.ResizeScaling(1);  // the device list was shorter than the table
    table[0].logicalName = "A";
    table[3].logicalName = "D";
    table[3].settings.Mode = Trace;
    table.scaling[0].minScope = -20;
    table.slotReadings[0] = {1, 30};
    table.slotReadings[3] = {2, 33};
    table.currentSensor = 3;
    table.SwapSlots(0, 3);
    EXPECT_EQ(table[0].logicalName, "D");
    EXPECT_EQ(table[0].settings.Mode, Trace);
    EXPECT_EQ(table[3].logicalName, "A");
    EXPECT_EQ(table.scaling[3].minScope, -20);
    EXPECT_EQ(table.scaling[0].minScope, -65);
    EXPECT_EQ(table.slotReadings[0][1], 33);
    EXPECT_EQ(table.slotReadings[3][1], 30);
    EXPECT_EQ(table.currentSensor, 0);
}

TEST(WorkArrays, AreThoseOfTheMode) {
    const struct {
        std::int32_t mode;
        std::int16_t timeSlots;
        bool historyStartsAnew;
        std::size_t rings;
    } cases[] = {
        {ContinuousAverage, 5, true, 1},
        {TimeSlot, 5, false, 5},
        {TimeSlot, -7, false, 1},
        {Trace, 5, false, 1},
    };
    for (const auto& c : cases) {
        SensorTable table;
        table.Resize(2);
        SensorEntry& entry = table[1];
        entry.settings.Mode = c.mode;
        entry.settings.TSlotCount = c.timeSlots;
        entry.history.Add(1);
        entry.slotStats.resize(1);
        entry.slotStats[0].Add(1);
        PrepareWorkArrays(table, 1);
        EXPECT_EQ(entry.history.Index(), c.historyStartsAnew ? -1 : 0) << c.mode;
        ASSERT_EQ(entry.slotStats.size(), c.rings) << c.mode;
        EXPECT_EQ(entry.slotStats[0].Index(), c.mode == TimeSlot ? -1 : 0) << c.mode;
    }
}

TEST(SensorEntry, KeepsOfTheSensorBeforeOnlyWhatBelongsToTheSlot) {
    SensorEntry entry;
    entry.Begin({.resourceName = "A", .present = true, .results = {1}});
    entry.settings.Mode = Trace;
    entry.slotTriggerCursor = 1;
    entry.slotStats.resize(3);
    entry.slotStats[2].Add(1);
    ReleaseSlot(entry);
    EXPECT_EQ(entry.resourceName, "");
    EXPECT_FALSE(entry.present);
    EXPECT_TRUE(entry.results.empty());
    EXPECT_EQ(entry.settings.Mode, Trace);
    EXPECT_EQ(entry.slotTriggerCursor, 1);
    ASSERT_EQ(entry.slotStats.size(), 3U);
    EXPECT_EQ(entry.slotStats[2].Index(), -1);
}

// As one would do it without keeping the levels: take all thirty readings, convert, two passes.
LevelStatistics StatisticsAfresh(const ReadingRing& ring) {
    std::vector<double> levels(ring.Values().begin(), ring.Values().end());
    util::ArrayW2dBm(levels);
    double mean = 0;
    for (const double level : levels) mean += level / ReadingRing::Length;
    double squares = 0;
    for (const double level : levels) squares += (level - mean) * (level - mean);
    return {*std::max_element(levels.begin(), levels.end()),
            *std::min_element(levels.begin(), levels.end()), mean,
            std::sqrt(squares / (ReadingRing::Length - 1))};
}

TEST(ReadingRing, FromItsThirtiethReadingOnShowsTheDigitsOfStatisticsComputedAfresh) {
    ReadingRing ring;
    util::Random random(3);
    const util::NumberForm form;
    for (int i = 0; i < 200; ++i) {
        ring.Add((random.Next() - 0.3) * std::pow(10, -i / 20));
        ASSERT_EQ(ring.Index(), i % ReadingRing::Length);
        ASSERT_EQ(ring.Wrapped(), i >= ReadingRing::Length);
        ASSERT_EQ(ring.Statistics().has_value(), i >= ReadingRing::Length - 1) << i;
        if (!ring.Full()) continue;
        const LevelStatistics kept = ring.Statistics().value();
        const LevelStatistics afresh = StatisticsAfresh(ring);
        for (const auto member : {&LevelStatistics::max, &LevelStatistics::min,
                                  &LevelStatistics::mean, &LevelStatistics::sigma})
            EXPECT_EQ(util::FixedText(kept.*member, 9, form),
                      util::FixedText(afresh.*member, 9, form))
                << i;
        EXPECT_EQ(ring.Sigma(), kept.sigma) << i;
    }
    ring.Reset();
    EXPECT_TRUE(ring.Index() == -1 && !ring.Wrapped() && !ring.Sigma());
}

}  // namespace kelvra::sensors
