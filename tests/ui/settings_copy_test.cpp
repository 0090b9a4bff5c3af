// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::ui {

class SettingsCopyTest : public testing::Test, public test::WholeKelvra {
protected:
    void SetUp() override {
        driver.devices = {
            {"A", "PS-101", "1"}, {"B", "PS-102", "2"}, {"C", "PS-110", "3"}, {"D", "PS-101", "4"}};
        Start();
        Settings(0).Mode = sensors::TimeSlot;
        Settings(0).TSlotCount = 3;
        Settings(0).ContMeas = true;
        program->forms.mdiMain.CopySettings.Press();
    }

    forms::CopyForm& Form() { return program->forms.copyForm; }
    sensors::SensorSettings& Settings(int slot) { return program->table[slot].settings; }
    int SlotOf(const std::string& name) {
        int slot = 0;
        while (program->table[slot].logicalName != name) ++slot;
        return slot;
    }
    void Select(int slot) { program->windows.selection.Select(slot); }
    // "+C -D B": marked, not marked, can't be marked.
    std::string Rows() {
        std::string text;
        for (int row = 1; row < Form().CopyTargets.Rows(); ++row) {
            const auto checked = Form().CopyTargets.At(row, 0).checked;
            text += (row > 1 ? " " : "") +
                    std::string(!checked   ? ""
                                : *checked ? "+"
                                           : "-") +
                    Form().CopyTargets.At(row, 1).Text();
        }
        return text;
    }
};

TEST_F(SettingsCopyTest, OnlySensorsWithTheModeCanBeMarkedAndGetAllSettings) {
    const auto click = [this](int row) {
        return [this, row] { Form().CopyTargets.ClickCell(row, 1); };
    };
    const struct {
        std::function<void()> act;
        std::string rows;
    } cases[] = {
        {[] {}, "B -C -D"},    {click(0), "B -C -D"},
        {click(1), "B -C -D"}, {click(2), "B +C -D"},
        {click(2), "B -C -D"}, {[this] { Form().cmdCopyAll.Press(); }, "B +C +D"},
    };
    for (const auto& c : cases) {
        c.act();
        EXPECT_EQ(Rows(), c.rows);
        EXPECT_EQ(Form().cmdCopy.enabled, c.rows.find('+') != std::string::npos) << c.rows;
    }
    EXPECT_EQ(Form().CopyTargets.At(1, 2).Text(), "PS-102");
    EXPECT_EQ(Form().CopyTargets.At(1, 3).Text(), "has no time slot mode");
    const sensors::SensorSettings before = Settings(3);
    program->table[3].pointsError = "too many";         // not with the settings that it gets
    program->forms.setupForm.SensContAVTime.Type("7");  // is copied as well
    Form().cmdCopy.Press();
    for (const int slot : {2, 3}) {
        EXPECT_EQ(Settings(slot), Settings(0));
        EXPECT_EQ(program->table[slot].slotStats.size(), 3U);
        EXPECT_TRUE(program->table[slot].settingsChanged);
        EXPECT_EQ(program->table[slot].pointsError, "");
    }
    EXPECT_EQ(Settings(1), sensors::DefaultSettings());
    EXPECT_TRUE(program->forms.timeSlotDisp.visible);
    EXPECT_FALSE(Form().visible);
    EXPECT_EQ(Notice(), "Settings of sensor 1 (A) copied to 2 sensors");
    Select(3);
    controls::MenuItem& undo = program->forms.mdiMain.EditUndo;
    EXPECT_EQ(undo.caption.Get(), "Undo: copied settings of sensor 4 (D)");
    undo.Press();
    EXPECT_EQ(Settings(3), before);
    EXPECT_EQ(Settings(2), Settings(0));
}

TEST_F(SettingsCopyTest, TheWindowFollowsTheSensorsAndMarksBelongToThem) {
    Form().cmdCopyAll.Press();
    for (const int row : {1, 2}) Form().CopyTargets.ClickCell(row, 0);
    EXPECT_EQ(Rows(), "B -C +D");
    Select(1);  // its mode is the one that all have
    EXPECT_EQ(Rows(), "-A -C +D");
    EXPECT_EQ(Form().lblCopyFrom.caption.Get(),
              "Gives all settings of sensor 2 (B) to the marked sensors.");
    Select(0);
    program->forms.setupForm.SensMode.Choose(0);
    EXPECT_EQ(Rows(), "-B -C +D");
    program->table[1].enabled = program->table[2].enabled = false;
    Measure(1);
    EXPECT_EQ(Rows(), "+D -C -B");
    const auto gone = driver.devices;
    driver.devices = {gone[0], gone[2]};
    Tick();
    EXPECT_EQ(Rows(), "-C");
    EXPECT_FALSE(Form().cmdCopy.enabled);
    driver.devices = {gone[0]};
    Tick();
    EXPECT_EQ(Rows(), "");
    EXPECT_FALSE(Form().cmdCopyAll.enabled);
    EXPECT_EQ(Form().lblCopyFrom.caption.Get(), "There is no sensor besides sensor 1 (A).");
    driver.devices = gone;
    Tick();
    EXPECT_EQ(Rows(), "-B -C +D");
    Form().cmdCopy.Press();
    EXPECT_EQ(Notice(), "Settings of sensor 1 (A) copied to sensor 4 (D)");
    EXPECT_EQ(Settings(SlotOf("D")).TSlotCount, 3);
    program->forms.setupForm.cmdCopySettings.Press();
    EXPECT_EQ(Rows(), "-B -C -D");
    Form().cmdCopyCancel.Press();
    EXPECT_FALSE(Form().visible);
}

}  // namespace kelvra::ui
