// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensors/sensor_table.h"

#include <gtest/gtest.h>

#include <cmath>

#include "util/levels.h"
#include "util/number_text.h"
#include "util/random.h"

namespace kelvra::sensors {

TEST(SensorTable, KeepsWhatItHoldsAndAnEmptySpareElement) {
    SensorTable table;
    table.Resize(8);
    EXPECT_EQ(table.entries.size(), 9U);
    EXPECT_EQ(table.slotReadings.size(), 9U);
    table[1].logicalName = "B";
    table[2].logicalName = "C";
    table.slotReadings[1] = {1, 30};
    table.currentSensor = 2;
    table.Resize(2);
    EXPECT_EQ(table[1].logicalName, "B");
    EXPECT_EQ(table.slotReadings[1][1], 30);
    EXPECT_EQ(table.entries.size(), 3U);
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
    for (const auto& [before, after] : {std::pair{0, 3}, {3, 0}, {1, 1}}) {
        SensorTable swapped = table;
        swapped.currentSensor = static_cast<std::int16_t>(before);
        swapped.SwapSlots(0, 3);
        EXPECT_EQ(swapped[0].logicalName, "D");
        EXPECT_EQ(swapped[0].settings.Mode, Trace);
        EXPECT_EQ(swapped[3].logicalName, "A");
        EXPECT_EQ(swapped.scaling[3].minScope, -20);
        EXPECT_EQ(swapped.scaling[0].minScope, -65);
        EXPECT_EQ(swapped.slotReadings[0][1], 33);
        EXPECT_EQ(swapped.slotReadings[3][1], 30);
        EXPECT_EQ(swapped.currentSensor, after);
    }
}

TEST(WorkArrays, AreThoseOfTheMode) {
    const std::tuple<std::int32_t, std::int16_t, bool, std::size_t> cases[] = {
        {ContinuousAverage, 5, true, 1},
        {BufferedAverage, 5, false, 1},
        {TimeSlot, 5, false, 5},
        {TimeSlot, -7, false, 1},
        {Burst, 5, true, 1},
        {Trace, 5, false, 1},
    };
    for (const auto& [mode, slots, ringReset, stats] : cases) {
        SensorTable table;
        table.Resize(2);
        SensorEntry& entry = table[1];
        entry.settings.Mode = mode;
        entry.settings.TSlotCount = slots;
        entry.history.Add(1);
        entry.slotStats.assign(1, {});
        entry.slotStats[0].restart = 4;
        entry.slotStatsFull = true;
        PrepareWorkArrays(table, 1);
        EXPECT_EQ(entry.history.Index(), ringReset ? -1 : 0) << mode;
        ASSERT_EQ(entry.slotStats.size(), stats) << mode;
        EXPECT_EQ(entry.slotStats[0].restart, mode == TimeSlot ? -1 : 4) << mode;
        EXPECT_EQ(entry.slotStats.back().values.size(), 30U) << mode;
        EXPECT_EQ(entry.slotStatsFull, mode != TimeSlot) << mode;
    }
}

TEST(ReadingRing, HasASpreadFromItsThirtiethReadingOn) {
    ReadingRing ring;
    EXPECT_EQ(ring.Index(), -1);
    for (int i = 0; i < 29; ++i) {
        ring.Add(0.001);
        EXPECT_EQ(ring.Index(), i);
        EXPECT_FALSE(ring.Sigma()) << i;
    }
    ring.Add(0.001);
    EXPECT_EQ(ring.Sigma(), 0);
    EXPECT_FALSE(ring.Wrapped());
    ring.Add(0.5);
    EXPECT_EQ(ring.Index(), 0);
    EXPECT_TRUE(ring.Wrapped());
    EXPECT_EQ(ring.Values()[0], 0.5);
    for (int i = 0; i < 15; ++i) {
        ring.Add(0.001);  // 0 dBm
        ring.Add(-0.01);  // 10 dBm by its magnitude
    }
    EXPECT_NEAR(ring.Sigma().value(), std::sqrt(30 * 25.0 / 29), 1e-12);
    ring.Reset();
    EXPECT_EQ(ring.Index(), -1);
    EXPECT_FALSE(ring.Wrapped());
    EXPECT_FALSE(ring.Sigma());
}

// As one would do it without keeping the levels: take all thirty readings, convert, two passes.
double SigmaAfresh(const ReadingRing& ring) {
    std::vector<double> levels(ring.Values().begin(), ring.Values().end());
    util::ArrayW2dBm(levels);
    double mean = 0;
    for (const double level : levels) mean += level / ReadingRing::Length;
    double squares = 0;
    for (const double level : levels) squares += (level - mean) * (level - mean);
    return std::sqrt(squares / (ReadingRing::Length - 1));
}

TEST(ReadingRing, ShowsTheDigitsOfASpreadThatIsComputedAfresh) {
    ReadingRing ring;
    util::Random random(3);
    const util::NumberForm form;
    for (int i = 0; i < 200; ++i) {
        ring.Add((random.Next() - 0.3) * std::pow(10, -i / 20));
        if (!ring.Full()) continue;
        EXPECT_EQ(util::FixedText(ring.Sigma().value(), 9, form),
                  util::FixedText(SigmaAfresh(ring), 9, form))
            << i;
    }
}

}  // namespace kelvra::sensors
