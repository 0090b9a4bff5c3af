// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::ui {

class ErrorStripTest : public testing::Test, public test::WholeKelvra {
protected:
    std::string Strip() const { return program->forms.setupForm.lblInputError.caption.Get(); }
};

TEST_F(ErrorStripTest, ShowsTheErrorOfTheLowestSlotThatHasOneUntilNoneIsLeft) {
    StartWith(2);
    const struct {
        std::string errors[2];  // of the two sensors
        std::string shown;
    } cases[] = {
        {{"", "Count\r\n  bad\r\n"}, "B: Count\r\n  bad"},
        {{"Level\r\n", "Count\r\n"}, "A: Level"},
        {{"", ""}, ""},
    };
    ui::ErrorStrip& strip = program->windows.errorStrip;
    for (const auto& c : cases) {
        for (int slot : {1, 0}) {
            program->table[slot].lastErrorText = c.errors[slot];
            if (c.errors[slot].empty())
                strip.SensorIsWell(slot);
            else
                strip.SensorFailed(slot, c.errors[slot]);
        }
        const bool any = !c.shown.empty();
        EXPECT_EQ(Strip(), c.shown);
        EXPECT_EQ(strip.ErrorShown(), any) << c.shown;
        EXPECT_EQ(program->forms.setupForm.Frame1.place->height, any ? 2835 : 1935) << c.shown;
    }
    program->table[0].lastErrorText = "error";
    program->table.simulationMode = true;  // shows nothing
    strip.SensorFailed(0, "error");
    EXPECT_EQ(Strip(), "");
}

TEST_F(ErrorStripTest, ARefusedHandleIsRecoveredFromOnceInAStart) {
    const struct {
        std::string message;
        bool always;
        int transfers;
    } cases[] = {
        {"Parameter 1 out of range", false, 2},
        {"parameter 1 out of range", true, 2},
        {"Parameter 2 out of range", true, 1},
    };
    StartWith(1);
    for (const auto& [message, always, transfers] : cases) {
        for (int start = 1; start <= 2; ++start) {
            driver.count.clear();
            driver.message = message;
            driver.status = [&, &all = always](std::string_view name, int n) {
                return name == "psdrv_trigger_setCount" && (all || n == 1) ? 7 : 0;
            };
            Measure(1);
            for (const char* name : {"psdrv_chan_reset", "psdrv_init", "psdrv_close"})
                EXPECT_EQ(driver.Count(name), transfers) << message << start << name;
            EXPECT_EQ(driver.Count("psdrv_chans_initiate") > 0, transfers == 1) << message;
            EXPECT_EQ(
                Notice().starts_with("Sensor A had lost its session. The measurement has ended. "
                                     "The sensor answers again."),
                transfers == 2 && !always);
            EXPECT_TRUE(program->forms.mdiMain.StartIt.enabled);
        }
    }
}

}  // namespace kelvra::ui
