// SPDX-License-Identifier: GPL-3.0-or-later
#include "sensors/sensor_table.h"

#include <gtest/gtest.h>

namespace kelvra::sensors {

TEST(SensorTable, KeepsWhatItHoldsAndAnEmptySpareElement) {
    SensorTable table;
    table.Resize(8);
    EXPECT_EQ(table.Sensors.size(), 9U);
    EXPECT_EQ(table.SlotReadings.size(), 9U);
    table[1].LogicalName = "B";
    table[2].LogicalName = "C";
    table.SlotReadings[1] = {1, 30};
    table.CurrentSensor = 2;
    table.Resize(2);
    EXPECT_EQ(table[1].LogicalName, "B");
    EXPECT_EQ(table.SlotReadings[1][1], 30);
    EXPECT_EQ(table.Sensors.size(), 3U);
    EXPECT_EQ(table[2].LogicalName, "");
    EXPECT_EQ(table.CurrentSensor, 0);
    for (const int refused : {0, -1, 40'000}) table.Resize(refused);
    EXPECT_EQ(table.SensorSlotCount, 2);
}

TEST(SensorTable, IsNotResizedWhileItIsLocked) {
    SensorTable table;
    table.Resize(8);
    {
        const TableLock outer(table);
        const TableLock inner(table);
        EXPECT_DEBUG_DEATH(table.Resize(2), "locks");
        EXPECT_EQ(table.Sensors.size(), 9U);
    }
    table.Resize(2);
    EXPECT_EQ(table.Sensors.size(), 3U);
}

TEST(SensorTable, SwapsAllThatBelongsToASlot) {
    SensorTable table;
    table.Resize(4);
    table.ResizeScaling(1);  // the device list was shorter than the table
    table[0].LogicalName = "A";
    table[3].LogicalName = "D";
    table[3].Settings.Mode = Trace;
    table.Scaling[0].MinScope = -20;
    table.SlotReadings[0] = {1, 30};
    table.SlotReadings[3] = {2, 33};
    const struct { std::int16_t before, after; } selections[] = {{0, 3}, {3, 0}, {1, 1}};
    for (const auto& selection : selections) {
        SensorTable swapped = table;
        swapped.CurrentSensor = selection.before;
        swapped.SwapSlots(0, 3);
        EXPECT_EQ(swapped[0].LogicalName, "D");
        EXPECT_EQ(swapped[0].Settings.Mode, Trace);
        EXPECT_EQ(swapped[3].LogicalName, "A");
        EXPECT_EQ(swapped.Scaling[3].MinScope, -20);
        EXPECT_EQ(swapped.Scaling[0].MinScope, -65);
        EXPECT_EQ(swapped.SlotReadings[0][1], 33);
        EXPECT_EQ(swapped.SlotReadings[3][1], 30);
        EXPECT_EQ(swapped.CurrentSensor, selection.after);
    }
}

TEST(WorkArrays, AreThoseOfTheMode) {
    const struct {
        std::int32_t mode;
        std::int16_t slots;
        bool ringReset;
        std::size_t stats;
    } cases[] = {
        {ContinuousAverage, 5, true, 1},
        {BufferedAverage, 5, false, 1},
        {TimeSlot, 5, false, 5},
        {TimeSlot, -7, false, 1},
        {Burst, 5, true, 1},
        {Trace, 5, false, 1},
    };
    for (const auto& c : cases) {
        SensorTable table;
        table.Resize(2);
        SensorEntry& entry = table[1];
        entry.Settings.Mode = c.mode;
        entry.Settings.TSlotCount = c.slots;
        entry.History.Add(1);
        entry.TSlotStats.assign(1, {});
        entry.TSlotStats[0].Restart = 4;
        entry.TSlotStatsFull = true;
        PrepareWorkArrays(table, 1);
        EXPECT_EQ(entry.History.Index(), c.ringReset ? -1 : 0) << c.mode;
        ASSERT_EQ(entry.TSlotStats.size(), c.stats) << c.mode;
        EXPECT_EQ(entry.TSlotStats[0].Restart, c.mode == TimeSlot ? -1 : 4) << c.mode;
        EXPECT_EQ(entry.TSlotStats.back().Values.size(), 30U) << c.mode;
        EXPECT_EQ(entry.TSlotStatsFull, c.mode != TimeSlot) << c.mode;
    }
}

TEST(SensorTable, FindsAMeasuredSensorByNameOnlyWhilePresentAndEnabled) {
    SensorTable table;
    table.Resize(3);
    const struct { bool present, enabled; } slots[] = {{true, false}, {false, true}, {true, true}};
    for (int slot = 0; slot < 3; ++slot) {
        table[slot].LogicalName = "A";
        table[slot].Present = slots[slot].present;
        table[slot].Enabled = slots[slot].enabled;
    }
    EXPECT_EQ(table.FindMeasured("A"), 2);
    EXPECT_EQ(table.FindMeasured("B"), -1);
}

}  // namespace kelvra::sensors
