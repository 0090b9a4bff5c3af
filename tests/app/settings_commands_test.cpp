// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::app {

class SettingsCommandsTest : public testing::Test, public test::WholeKelvra {};

TEST_F(SettingsCommandsTest, LoadAndSaveSayForWhichSensorAndWhatTheyHaveDone) {
    folder.Put("none.ini", "[Other]\r\n");
    StartWith(2);
    auto& main = program->forms.mdiMain;
    const struct {
        controls::MenuItem& entry;
        const char* file;
        std::int16_t sensor;
        const char* name;
        std::string about, notice;
    } cases[] = {
        {main.Save_Sensor_Settings, "b.ini", 1, "B", "sensor 2 (B)", "saved to b.ini"},
        {main.Load_Sensor_Settings, "b.ini", 0, "1", "sensor 1", "loaded from b.ini"},
        {main.Load_Sensor_Settings, "gone.ini", 0, "A", "sensor 1 (A)", ""},
        {main.Load_Sensor_Settings, "none.ini", 0, "A", "sensor 1 (A)", ""},
    };
    for (const auto& c : cases) {
        program->windows.notice.ShowDone("");
        program->table.currentSensor = c.sensor;
        program->table[c.sensor].logicalName = c.name;
        fake.dialogs.fileAnswer = folder.Path(c.file);
        c.entry.Press();
        EXPECT_EQ(fake.dialogs.fileQuestion.about, c.about);
        const std::string done = c.notice.empty() ? "" : "Settings of " + c.about + " " + c.notice;
        EXPECT_EQ(main.ConnectedFrame.visible ? Notice() : "", done);
    }
}

}  // namespace kelvra::app
