// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "measure/trend_store.h"

namespace kelvra::measure {
namespace {

using namespace std::chrono_literals;
using platform::Duration;

// Readings of 1, 2, ... 10 mW over and over, from the beginning of the clock on.
void Fill(TrendSeries& series, Duration length, Duration step) {
    int i = 0;
    for (Duration at{}; at < length; at += step) series.Add(at, (1 + i++ % 10) * 1e-3);
}

// How many readings the columns have; and that each that has any is joined and has the range and
// the mean of readings that follow each other.
std::uint64_t CountIn(const std::vector<TrendColumn>& columns) {
    std::uint64_t count = 0;
    for (const TrendColumn& column : columns) {
        count += column.count;
        if (column.count < 10) continue;
        EXPECT_NEAR(column.min, 1e-3, 1e-9);
        EXPECT_NEAR(column.max, 10e-3, 1e-9);
        EXPECT_NEAR(column.mean, 5.5e-3, 0.5e-3);
    }
    return count;
}

TEST(TrendSeries, EachTimeComesFromTheCoarsestBucketsThatAreNarrowEnoughAndStillThere) {
    TrendSeries series("A", 0);
    Fill(series, 48h, 50ms);
    const struct {
        Duration from, width;
        std::uint64_t readings, slack;  // buckets are in a column as a whole
    } cases[] = {
        {48h - 1min, 50ms, 1200, 0},
        {48h - 10min, 500ms, 12'000, 0},
        {48h - 8h, 24s, 576'000, 0},
        {48h - 24h, 72s, 1'728'000, 0},
        {48h - 10ms * 1200, 10ms, 240, 0},  // a reading in every fifth column
        {0h, 144s, 3'456'000, 1200},        // the first twelve hours only by the minute
        {0h, 100ms, 2400, 1200},            // two minutes of them
        {-1h, 3s, 0, 0},
        {48h, 3s, 0, 0},
    };
    for (const auto& c : cases)
        EXPECT_NEAR(static_cast<double>(CountIn(series.Query(c.from, c.width, 1200))),
                    static_cast<double>(c.readings), static_cast<double>(c.slack))
            << c.width.count();
    EXPECT_EQ(CountIn(series.Query(47h, 500ms, 7200, 47h + 5min)), 6000U);
    EXPECT_TRUE(series.Query(0h, 0s, 10).empty());
    EXPECT_FLOAT_EQ(static_cast<float>(*series.LastBefore(48h)), 10e-3F);
    EXPECT_FALSE(series.LastBefore(1h));
}

TEST(TrendSeries, ABreakIsSeenAtEveryWidthAndBadReadingsAreBreaks) {
    const auto joined = [](const TrendSeries& series, Duration width) {
        std::string text;
        for (const TrendColumn& column : series.Query(0h, width, static_cast<int>(2h / width)))
            if (column.count > 0) text += column.joined ? '-' : 'x';
        return text;
    };
    TrendSeries series("A", 0);
    for (const Duration at : {Duration(1s), Duration(20min), Duration(40min)}) series.Add(at, 1e-3);
    series.Break();
    for (const Duration at : {Duration(60min), Duration(80min)}) series.Add(at, 1e-3);
    series.Add(90min, std::numeric_limits<double>::quiet_NaN());
    series.Add(100min, -2e-3);
    for (const Duration width : {10ms, 100ms, 1000ms, 10'000ms, 60'000ms, 600'000ms})
        EXPECT_EQ(joined(series, width), "x--x-x") << width.count();
    EXPECT_FLOAT_EQ(static_cast<float>(*series.LastBefore(2h)), 2e-3F);  // a magnitude
    series.Add(90min, 3e-3);                                             // a clock that goes back
    EXPECT_EQ(series.NewestTime(), 100min);
    EXPECT_EQ(series.Query(100min, 1ms, 1)[0].count, 2U);
}

TEST(TrendStore, ADayOfEightSensorsFitsIntoItsMemoryHoweverFastTheyAre) {
    std::size_t most = TrendReadings * 16;
    for (const TrendTier& tier : TrendTiers) most += tier.buckets * 24;
    TrendStore store;
    for (const char* key : {"1", "2", "3", "4", "5", "6", "7"}) Fill(store.Of(key), 24h, 50ms);
    Fill(store.Of("8"), 10min, 200us);
    constexpr std::size_t slack = 4096;  // what a sensor needs besides its readings
    EXPECT_LT(store.Bytes(), 64U << 20);
    EXPECT_LT(store.Bytes(), 8 * (most + slack));
    EXPECT_GT(store.Bytes(), 7 * most / 2);
    store.Clear();
    EXPECT_EQ(store.Bytes(), 0U);
}

TEST(TrendStore, TheSensorThatHasBeenSilentForLongestMakesRoomUnlessItIsMeasured) {
    TrendStore store;
    for (int i = 0; i < static_cast<int>(TrendStore::Most); ++i)
        store.Of(std::to_string(i)).Add(1s * (100 - i), 1e-3);
    store.Of("15").active = true;
    EXPECT_EQ(store.Of("new").Place(), 14);  // the one that was free
    EXPECT_EQ(store.Find("14"), nullptr);
    EXPECT_NE(store.Find("15"), nullptr);
    for (const auto& series : store.All()) series->active = true;
    store.Of("more");
    EXPECT_EQ(store.All().size(), TrendStore::Most + 1);
    store.Clear();
    EXPECT_EQ(store.All().size(), TrendStore::Most);
    EXPECT_FALSE(store.Find("15")->NewestTime());
}

}  // namespace
}  // namespace kelvra::measure
