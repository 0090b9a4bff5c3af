// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::ui {

class ErrorStripTest : public testing::Test, public test::WholeKelvra {
protected:
    std::string Strip() const { return program->forms.setupForm.lblInputError.caption; }
    int Height() const { return program->forms.setupForm.Frame1.place->height; }
    bool NoticeVisible() const { return program->forms.mdiMain.ConnectedFrame.visible; }
};

TEST_F(ErrorStripTest, ShowsAnErrorWithItsSensorUntilItIsCleared) {
    StartWith(2);
    driver::SensorNotices& notices = program->errorStrip;
    notices.SensorFailed(1, "Count\r\n  bad");
    EXPECT_EQ(Strip(), "B: Count\r\n  bad");
    EXPECT_EQ(Notice(), "B: Count\r\n  bad");
    EXPECT_TRUE(program->session.errorShown);
    EXPECT_EQ(Height(), 2835);
    EXPECT_TRUE(NoticeVisible());
    notices.SensorIsWell(1);
    EXPECT_EQ(Strip(), "");
    EXPECT_FALSE(program->session.errorShown);
    EXPECT_EQ(Height(), 1935);
    EXPECT_FALSE(NoticeVisible());
    notices.OpeningFailed(1, "words");
    EXPECT_EQ(fake.dialogs.messages, (std::vector<test::FakeDialogs::Shown>{{"", "words"}}));
    program->table.simulationMode = true;  // shows nothing
    notices.SensorFailed(1, "error");
    EXPECT_EQ(Strip(), "");
    EXPECT_FALSE(program->session.errorShown);
}

TEST_F(ErrorStripTest, ARefusedHandleIsRecoveredFromOnceInAStart) {
    const std::tuple<std::string, bool, int> cases[] = {
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
            EXPECT_EQ(Notice().starts_with("The driver session was lost"), transfers == 2);
            EXPECT_TRUE(program->forms.mdiMain.StartIt.enabled);
        }
    }
}

}  // namespace kelvra::ui
