// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"
#include "ui/result_columns.h"

namespace kelvra::ui {

using std::chrono::milliseconds;

class ReadingAgeTest : public testing::Test, public test::WholeKelvra {
protected:
    std::string Stale(int slot) const {
        std::string stale;
        for (const int column : {WattColumn, DbmColumn, SigmaColumn, CountColumn})
            stale += Cell(slot, column).stale ? 'x' : '-';
        return stale;
    }
    void Wait(milliseconds time) {
        for (; time.count() > 0; time -= milliseconds(500)) Tick();
    }
};

TEST_F(ReadingAgeTest, ValuesAreLiveForTwoSecondsAndTwiceTheirPassAndAgainFromStartOn) {
    const struct {
        milliseconds pass, wait;  // Stop comes one pass after the last reading
        std::string stale;
    } cases[] = {
        {milliseconds(1), milliseconds(1500), "----"},
        {milliseconds(1), milliseconds(2500), "xx-x"},  // sigma is empty
        {milliseconds(3000), milliseconds(2500), "----"},
        {milliseconds(3000), milliseconds(3500), "xx-x"},
    };
    StartWith(2);
    for (const auto& c : cases) {
        driver.onCall = [&](std::string_view name) {
            if (name == "psdrv_chans_initiate") fake.clock.Advance(c.pass);
            if (name == "psdrv_init") {
                EXPECT_EQ(Stale(0), "----");
            }
        };
        Measure(2);
        Wait(c.wait);
        const bool old = c.stale != "----";
        EXPECT_EQ(program->forms.mdiMain.CalcGrid.At(1, 2).stale, old) << c.pass.count();
        EXPECT_EQ(Stale(0), c.stale) << c.pass.count() << ", " << c.wait.count();
        EXPECT_EQ(Stale(1), c.stale) << c.pass.count() << ", " << c.wait.count();
    }
    driver.devices.clear();
    Wait(milliseconds(1000));
    EXPECT_EQ(Stale(0), "----");
}

TEST_F(ReadingAgeTest, AFailingFetchAgesItsOwnSensorUntilAReadingComes) {
    StartWith(2);
    bool fails = true;
    driver.status = [&](std::string_view name, int n) {
        return name == "psdrv_meass_fetchMeasurement" && n > 20 && n % 2 == 0 && fails ? 7 : 0;
    };
    fake.events.roundTime = milliseconds(100);
    fake.events.onRound = [&](int round) {
        if (round == 60) {
            EXPECT_EQ(Stale(0), "----");
            EXPECT_EQ(Stale(1), "xx-x");
            fails = false;
        }
        if (round == 64) {
            EXPECT_EQ(Stale(1), "----");
            PressStop();
        }
    };
    PressStart();
}

TEST_F(ReadingAgeTest, TheSpeedIsSeenWhileItIsMeasured) {
    StartWith(1);
    const auto& speed = program->forms.mdiMain.MeasSpeedInfo;
    EXPECT_FALSE(speed.visible);
    fake.events.roundTime = milliseconds(100);
    fake.events.onRound = [&](int round) {
        const bool clear = round < 10 || round > 30;
        EXPECT_TRUE(!clear || speed.visible == (round > 30)) << round;
        if (round < 41) return;  // the pass is measured, and long enough for a figure
        fake.clock.Advance(std::chrono::seconds(2));
        PressStop();
    };
    PressStart();
    EXPECT_FALSE(speed.visible);
}

}  // namespace kelvra::ui
