// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/error_strip.h"

#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::ui {

class ErrorStripTest : public testing::Test, public test::WholeKelvra {
protected:
    std::string Strip() const { return program->forms.setupForm.lblInputError.Caption; }
    int Height() const { return program->forms.setupForm.Frame1.Place->height; }
    bool NoticeVisible() const { return program->forms.mdiMain.ConnectedFrame.Visible; }
};

TEST_F(ErrorStripTest, ShowsAnErrorWithItsSensorUntilItIsCleared) {
    StartWith(2);
    const struct {
        std::string text;
        bool general;
        const char* strip;
        const char* notice;
        bool error;
    } cases[] = {
        {"Count\r\n  bad\r\n", false, "B: Count\r\n  bad", "B: Count\r\n  bad", true},
        {"\r\n", false, "B: ", "B: ", true},
        {"Delaying ... 2    ", true, "B: Delaying ... 2", "Delaying ... 2", false},
        {"abc", true, "B: ", "", false},
    };
    for (const auto& c : cases) {
        program->errorStrip.ShowSensorError(true, 1, c.text, c.general);
        EXPECT_EQ(Strip(), c.strip);
        EXPECT_EQ(Notice(), c.notice);
        EXPECT_EQ(program->session.ErrorShown, c.error);
        EXPECT_EQ(Height(), 2835);
        EXPECT_TRUE(NoticeVisible());
        program->errorStrip.ShowSensorError(false, 1, "", false);
        EXPECT_EQ(Strip(), "");
        EXPECT_FALSE(program->session.ErrorShown);
        EXPECT_EQ(Height(), 1935);
        EXPECT_FALSE(NoticeVisible());
    }
}

TEST_F(ErrorStripTest, ShowsNothingOfSimulatedSensors) {
    Start();
    const std::string before = Strip();
    program->errorStrip.ShowSensorError(true, 0, "error", false);
    EXPECT_EQ(Strip(), before);
    EXPECT_FALSE(program->session.ErrorShown);
}

TEST_F(ErrorStripTest, AnErrorStaysInTheNoticeWhileTheMeasurementGoesOn) {
    StartWith(1);
    driver.status = [](std::string_view name, int) {
        return name == "psdrv_trigger_setCount" ? 7 : 0;
    };
    Measure(3);
    EXPECT_EQ(Notice(), "A: Trigger Count\r\n  bad value\r\n  queue empty");
    EXPECT_TRUE(NoticeVisible());
    EXPECT_EQ(program->state.Passes, 3);
}

TEST_F(ErrorStripTest, ARefusedHandleIsRecoveredFromOnceInAStart) {
    const struct {
        const char* message;
        bool always;
        int transfers;
    } cases[] = {
        {"Parameter 1 out of range", false, 2},
        {"parameter 1 out of range", true, 2},
        {"Parameter 2 out of range", true, 1},
    };
    StartWith(1);
    for (const auto& c : cases) {
        for (int start = 1; start <= 2; ++start) {
            driver.count.clear();
            driver.message = c.message;
            driver.status = [&](std::string_view name, int n) {
                return name == "psdrv_trigger_setCount" && (c.always || n == 1) ? 7 : 0;
            };
            Measure(1);
            EXPECT_EQ(driver.Count("psdrv_chan_reset"), c.transfers) << c.message << start;
            EXPECT_EQ(driver.Count("psdrv_init"), c.transfers) << c.message << start;
            EXPECT_EQ(driver.Count("psdrv_close"), c.transfers) << c.message << start;
            EXPECT_EQ(driver.Count("psdrv_chans_initiate") > 0, c.transfers == 1) << c.message;
            EXPECT_EQ(Notice().starts_with("The driver session was lost"), c.transfers == 2);
            EXPECT_TRUE(program->forms.mdiMain.StartIt.Enabled);
        }
    }
}

}  // namespace kelvra::ui
