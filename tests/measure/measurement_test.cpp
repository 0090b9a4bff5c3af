// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cmath>

#include "support/whole_kelvra.h"
#include "ui/result_columns.h"

namespace kelvra::measure {

using std::chrono::milliseconds;
using std::chrono::seconds;

class MeasurementTest : public testing::Test, public test::WholeKelvra {
protected:
    // When each pass began measuring, until that many are complete.
    std::vector<platform::Duration> Starts(int passes) {
        std::vector<platform::Duration> starts;
        driver.onCall = [&](std::string_view name) {
            if (name == "psdrv_chans_initiate") starts.push_back(fake.clock.Monotonic());
        };
        program->state.recordInterval = 5;
        Measure(passes);
        return starts;
    }
};

TEST_F(MeasurementTest, ATriggerIsSentForARequestOfThePassThatWaits) {
    StartWith(1);
    const auto triggers = [this] { return driver.Count("psdrv_meass_sendSoftwareTrigger"); };
    driver.complete = [&](int) { return triggers() > 0; };
    program->table[0].triggerNowRequest = true;  // of no pass: dropped
    fake.events.onRound = [&](int round) {
        if (round == 5) {
            EXPECT_EQ(triggers(), 0);
            program->table[0].triggerNowRequest = true;
        }
        if (program->state.passes == 2 || round > 100) PressStop();
    };
    PressStart();
    EXPECT_EQ(triggers(), 1);
    EXPECT_EQ(program->state.passes, 2);
}

TEST_F(MeasurementTest, AReadingIsShownWhateverItIs) {
    const struct {
        double reading;
        std::int32_t count;
        std::string watts, dbm;
    } cases[] = {
        {0.001, 4, "1.0000E-03", "0.000"},
        {0, 1, "0.0000E+00", "-970.000"},
        {-0.01, 65536, "-1.0000E-02", "10.000"},
        {INFINITY, INT32_MIN, "Inf", "Inf"},
    };
    StartWith(1);
    for (const auto& [reading, count, watts, dbm] : cases) {
        driver.reading = reading;
        driver.averagingCount = count;
        Measure(35);
        EXPECT_EQ(Cell(0, ui::WattColumn).Text(), watts);
        EXPECT_EQ(Cell(0, ui::DbmColumn).Text(), dbm);
        EXPECT_EQ(Cell(0, ui::CountColumn).Text(), std::to_string(count));
        EXPECT_EQ(Cell(0, ui::SigmaColumn).Text(), std::isfinite(reading) ? "0.000" : "NaN");
        EXPECT_EQ(Cell(0, ui::WattColumn).look.back, controls::White);
    }
}

TEST_F(MeasurementTest, AnArrayHasAsManyValuesAsCame) {
    const struct {
        std::size_t values;
        std::optional<std::int32_t> count;
        std::size_t kept;
    } cases[] = {
        {312, {}, 312}, {1024, {}, 1024}, {0, {}, 1024}, {5, -3, 1024}, {5, 2000, 1024}, {5, 3, 3},
    };
    StartWith(1);
    for (const std::int32_t mode : {2, 4}) {
        program->table[0].settings.Mode = mode;
        for (const auto& [values, count, kept] : cases) {
            driver.array.assign(values, 0.5);
            if (values > 1) driver.array[1] = NAN;
            driver.arrayCount = count;
            Measure(1);
            const auto& results = program->table[0].results;
            ASSERT_EQ(results.size(), kept) << values;
            EXPECT_EQ(results[0], values > 0 ? 0.5 : 0);
        }
        EXPECT_EQ(Cell(0, ui::WattColumn).look.back, controls::Grey);
    }
}

TEST_F(MeasurementTest, OnlyTheModesThatHaveAResultFetchOne) {
    StartWith(1);
    for (const std::int32_t mode : {0, 1, 2, 3, 4, 7}) {
        auto& entry = program->table[0];
        entry.settings.Mode = mode;
        entry.newSlotData = entry.newTraceData = false;
        driver.count.clear();
        Measure(1);
        const bool isSlots = mode == 2, isTrace = mode == 4;
        EXPECT_EQ(driver.Count("psdrv_meass_fetchMeasurement"), mode == 0 || mode == 3) << mode;
        EXPECT_EQ(driver.Count("psdrv_meass_fetchBufferMeasurement"), isSlots || isTrace) << mode;
        EXPECT_EQ(entry.newSlotData, isSlots) << mode;
        EXPECT_EQ(entry.newTraceData, isTrace) << mode;
        EXPECT_EQ(program->state.timeSlotModeActive, isSlots);
        EXPECT_EQ(program->forms.scopeDisp.visible, isTrace);
    }
}

TEST_F(MeasurementTest, PassesKeepTheIntervalAndDoNotDrift) {
    StartWith(1);
    fake.events.roundTime = milliseconds(7);
    const auto starts = Starts(50);
    ASSERT_GE(starts.size(), 50U);
    for (std::size_t i = 0; i < 50; ++i) {
        const auto late = starts[i] - starts[0] - seconds(5) * static_cast<int>(i);
        EXPECT_TRUE(late >= milliseconds(-10) && late <= milliseconds(10))
            << i << " " << late.count();
    }
}

TEST_F(MeasurementTest, AfterAPassThatTookLongerTheIntervalStartsAnew) {
    StartWith(1);
    int asked = 0;
    driver.complete = [&](int) {
        if (++asked == 2) fake.clock.Advance(seconds(12));
        return true;
    };
    const auto starts = Starts(4);
    ASSERT_GE(starts.size(), 4U);
    const int expected[] = {5000, 12000, 5000};
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_EQ(std::chrono::round<milliseconds>(starts[i + 1] - starts[i]).count(), expected[i])
            << i;
}

TEST_F(MeasurementTest, TheNoticeCountsTheSecondsThatAreLeftAndIsNoError) {
    StartWith(1);
    std::vector<std::string> seen;
    fake.events.onRound = [&](int) {
        const auto& window = program->forms.mdiMain;
        if (Notice().starts_with("Delaying") && (seen.empty() || seen.back() != Notice())) {
            EXPECT_TRUE(window.ConnectedFrame.visible);
            seen.push_back(Notice());
        }
        EXPECT_FALSE(program->windows.errorStrip.ErrorShown());
        if (program->state.passes == 1) PressStop();
    };
    program->state.recordInterval = 3;
    PressStart();
    EXPECT_EQ(seen,
              (std::vector<std::string>{"Delaying ... 3", "Delaying ... 2", "Delaying ... 1"}));
    EXPECT_EQ(Notice(), " ");
}

TEST_F(MeasurementTest, StopAndTheEndOfARecordingEndTheDelayAtOnce) {
    StartWith(1);
    for (const bool stop : {true, false}) {
        platform::Duration ended{};
        fake.events.onRound = [&](int) {
            const bool isOver = ended.count() > 0;
            if (!isOver && !Notice().starts_with("Delaying")) return;
            if (!isOver) ended = fake.clock.Monotonic();
            if (!isOver && !stop)
                program->state.recordInterval = 0;
            else
                PressStop();
        };
        program->state.recordInterval = 3600;
        PressStart();
        EXPECT_LE(fake.clock.Monotonic() - ended, milliseconds(5)) << stop;
        EXPECT_EQ(program->state.recordInterval, 0);
    }
}

}  // namespace kelvra::measure
