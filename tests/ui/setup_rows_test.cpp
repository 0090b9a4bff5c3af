// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/setup_rows.h"

#include <gtest/gtest.h>

namespace kelvra::ui {
namespace {

class SetupRowsTest : public testing::Test {
protected:
    void Show() { ShowSettings(form_, settings_); }

    controls::Changes changes_;
    forms::SetupForm form_{changes_};
    sensors::SensorSettings settings_ = sensors::DefaultSettings();
};

TEST_F(SetupRowsTest, NumbersAreShownInTheUnitOfTheDialog) {
    settings_.ContAVAper = 0.0123;
    settings_.BurstAVDropTol = 0.0000015;
    settings_.CorrFreqVal = 1234567890;
    settings_.TrigDelay = -0.0012345678;
    settings_.TrigHoldOff = 0.0012345678;
    Show();
    const struct {
        const controls::TextBox& box;
        const char* text;
    } cases[] = {
        {form_.SensContAVTime, "12.3"},          {form_.SensBurstDropOut, "1.5"},
        {form_.CorrFreqValue, "1234.56789"},     {form_.SensTriggerDelay, "-1.235"},
        {form_.SensTriggerHoldOff, "1.2345678"}, {form_.SensTriggerLevel, "-30"},
    };
    for (const auto& c : cases) EXPECT_EQ(c.box.Text(), c.text) << c.box.Name();
}

TEST_F(SetupRowsTest, MarksOptionsAndEntriesFollowTheirSettings) {
    Show();
    EXPECT_TRUE(form_.CorrFreqEnable.Checked());  // the setting says no
    EXPECT_FALSE(form_.SensTriggerNow.visible);
    settings_.CorrOffset = true;
    settings_.RangeAuto = false;
    settings_.TrigSource = 0;
    settings_.Mode = sensors::Trace;
    form_.SensMode.Fill({{"Scope", sensors::Trace}, {"Cont Avg", sensors::ContinuousAverage}});
    Show();
    EXPECT_TRUE(form_.CorrOffsetEnable.Checked());
    EXPECT_EQ(form_.SensRange.Selected(), 1);
    EXPECT_EQ(form_.SensTrigger.Text(), "Single");
    EXPECT_EQ(form_.SensMode.Index(), 0);
    EXPECT_TRUE(form_.SensTriggerNow.visible);
}

TEST_F(SetupRowsTest, SlotOfTheExclusionIsOneThatIsListed) {
    const struct {
        std::int16_t count;
        std::int16_t stored;
        const char* selected;
    } cases[] = {{4, 2, "3"}, {4, -1, "1"}, {4, 4, "4"}, {1, 0, "1"}};
    for (const auto& c : cases) {
        settings_.TSlotCount = c.count;
        settings_.TSlotExclDispInSlot = c.stored;
        Show();
        EXPECT_EQ(form_.ShowExclInTSlot.Text(), c.selected) << c.count << ", " << c.stored;
        EXPECT_EQ(form_.ShowExclInTSlot.Count(), c.count);
    }
}

}  // namespace
}  // namespace kelvra::ui
