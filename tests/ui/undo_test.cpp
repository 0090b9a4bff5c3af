// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "support/whole_kelvra.h"

namespace kelvra::ui {

using sensors::SensorSettings;

class UndoTest : public testing::Test, public test::WholeKelvra {
protected:
    void SetUp() override { StartWith(3); }

    forms::SetupForm& Form() { return program->forms.setupForm; }
    controls::MenuItem& UndoItem() { return program->forms.mdiMain.EditUndo; }
    controls::MenuItem& RedoItem() { return program->forms.mdiMain.EditRedo; }
    sensors::SensorEntry& Current() { return program->table[program->table.currentSensor]; }
    void Select(int slot) { program->windows.selection.Select(slot); }
    // What the menu offers, without the verb.
    static std::string Offered(const controls::MenuItem& item) {
        const std::string& caption = item.caption;
        return item.enabled ? caption.substr(caption.find(": ") + 2) : "";
    }
    void Edit(const char* window) {
        Form().SensContAVTime.Type(window);
        Form().SensContAVTime.Leave();
    }
};

TEST_F(UndoTest, WhatIsTypedIntoOneBoxIsOneStepUntilItIsCommitted) {
    using Act = std::function<void()>;
    const auto type = [this](const char* text) -> Act {
        return [this, text] { Form().SensContAVTime.Type(text); };
    };
    const Act leave = [this] { Form().SensContAVTime.Leave(); };
    const Act enter = [this] { Form().SensContAVTime.PressKey("Enter"); };
    const Act undo = [this] { UndoItem().Press(); };
    const Act count = [this] { Form().SensSlotCount.Type("0"); };  // becomes 1
    const Act five = [this] { Form().SensSlotCount.Type("5"); };
    const Act check = [this] { Form().SensContAVSmooth.Toggle(); };
    const Act same = [this] { Form().SensTrigger.Choose(3); };
    const Act away = [this] {
        Select(1);
        Select(0);
    };
    const struct {
        const char* what;
        std::vector<Act> acts;
        int steps;
    } cases[] = {
        {"gathered", {type("1"), type("12"), type("12.5")}, 1},
        {"left", {type("1"), leave, type("12"), leave}, 2},
        {"Enter", {type("1"), enter, type("12")}, 2},
        {"another control", {type("1"), check, type("12")}, 3},
        {"another control that changes nothing", {type("1"), same, type("12")}, 2},
        {"back where it began", {type("1"), type(""), type("100")}, 0},
        {"nothing", {type("100"), same}, 0},
        {"a check box twice", {check, check}, 2},
        {"a text that the program completes", {count, five}, 2},
        {"another sensor meanwhile", {type("1"), away, type("12")}, 2},
        {"undone while it is typed", {type("1"), undo, type("12"), type("13")}, 1},
    };
    for (const auto& c : cases) {
        Start();
        for (const Act& act : c.acts) act();
        int steps = 0;
        for (; UndoItem().enabled; ++steps) UndoItem().Press();
        EXPECT_EQ(steps, c.steps) << c.what;
        EXPECT_EQ(Form().SensContAVTime.Text(), "100") << c.what;
        EXPECT_EQ(Current().settings.TSlotCount, 8) << c.what;
    }
}

TEST_F(UndoTest, EachSensorHasItsOwnStepsAndFormulasAreEverybodys) {
    Edit("1");
    Select(1);
    Edit("2");
    program->forms.mdiMain.CalcGrid.TypeCell(1, 1, "X1W");
    Form().SensSlotWidth.Type("5");
    const struct {
        int slot;
        bool undo;
        std::string undone, redone;  // offered before
    } cases[] = {
        {0, true, "formula", ""},
        {0, true, "Window of sensor 1 (A)", "formula"},
        {1, true, "Nominal Width of sensor 2 (B)", "formula"},
        {1, true, "Window of sensor 2 (B)", "Nominal Width of sensor 2 (B)"},
        {1, false, "", "Window of sensor 2 (B)"},
        {2, false, "", "formula"},
        {0, false, "formula", "Window of sensor 1 (A)"},
        {1, false, "formula", "Nominal Width of sensor 2 (B)"},
    };
    for (const auto& c : cases) {
        Select(c.slot);
        EXPECT_EQ(Offered(UndoItem()), c.undone);
        EXPECT_EQ(Offered(RedoItem()), c.redone);
        (c.undo ? UndoItem() : RedoItem()).Press();
    }
    EXPECT_EQ(program->table[0].settings.ContAVAper, 0.001);
    EXPECT_EQ(program->table[1].settings.TSlotWidth, 0.005);
    EXPECT_EQ(program->forms.mdiMain.CalcGrid.At(1, 1).Text(), "X1W");
    // A new edit drops what could be redone of the same sensor only.
    UndoItem().Press();
    Select(0);
    Edit("1.5");
    UndoItem().Press();
    Edit("3");
    EXPECT_EQ(Offered(RedoItem()), "");
    Select(1);
    EXPECT_EQ(Offered(RedoItem()), "Nominal Width of sensor 2 (B)");
}

TEST_F(UndoTest, StepsFollowTheirSensorThroughReorderingAndAnUnplug) {
    Select(2);
    Edit("3");
    program->table[0].enabled = program->table[1].enabled = false;
    Measure(1);
    EXPECT_EQ(Offered(UndoItem()), "Window of sensor 1 (C)");
    const test::FakeDriver::Device gone = driver.devices[2];
    driver.devices.pop_back();
    Tick();
    EXPECT_EQ(Offered(UndoItem()), "");
    driver.devices.push_back(gone);
    Tick();
    for (int slot = 0; slot < 3; ++slot)
        if (program->table[slot].logicalName == "C") Select(slot);
    UndoItem().Press();
    EXPECT_EQ(Current().sensorId, "PS-101;3");
    EXPECT_EQ(Current().settings.ContAVAper, 0.1);
    driver.devices.clear();  // simulated sensors have no id
    Tick();
    EXPECT_EQ(Offered(UndoItem()), "");
    Edit("7");
    Select(1);
    EXPECT_EQ(Offered(UndoItem()), "");
    Select(0);
    UndoItem().Press();
    EXPECT_EQ(Current().settings.ContAVAper, 0.1);
    EXPECT_TRUE(Current().settingsChanged);
}

TEST_F(UndoTest, AnUndoIsAnEditThatRestoresWhatItsStepHasChangedAndNoMore) {
    const SensorSettings before = Current().settings;
    Form().SensMode.Choose(Form().SensMode.IndexOfData(sensors::Trace));
    Form().ScopeTime.Type("5");
    Current().settings.ScopeOffset = 0.25;  // by other means
    Current().settingsChanged = false;
    UndoItem().Press();
    EXPECT_EQ(Current().settings.ScopeTime, before.ScopeTime);
    EXPECT_EQ(Current().settings.ScopeOffset, 0.25);
    EXPECT_EQ(Form().ScopeTimeOffset.Text(), "250");
    EXPECT_TRUE(Current().settingsChanged);
    Current().settings.ScopeOffset = before.ScopeOffset;
    Current().results = {1, 2};
    UndoItem().Press();
    EXPECT_EQ(Current().settings, before);
    EXPECT_TRUE(Current().results.empty());
    EXPECT_FALSE(program->forms.scopeDisp.visible);
    EXPECT_TRUE(Form().ContAVFrame.visible);
    EXPECT_FALSE(UndoItem().enabled);
    RedoItem().Press();
    EXPECT_TRUE(program->forms.scopeDisp.visible);
    EXPECT_EQ(Offered(RedoItem()), "Meas Time of sensor 1 (A)");
}

TEST_F(UndoTest, ALoadedFileIsOneStepWhichAlsoPreparesTheSlots) {
    folder.Put("a.ini", "[Sensor_MODE]\r\nMode=2\r\nTSlotCount=3\r\nContAVAper=.5\r\n");
    fake.dialogs.fileAnswer = folder.Path("a.ini");
    Edit("20");
    const SensorSettings before = Current().settings;
    program->forms.mdiMain.Load_Sensor_Settings.Press();
    EXPECT_EQ(Current().slotStats.size(), 3U);
    EXPECT_EQ(Offered(UndoItem()), "loaded settings of sensor 1 (A)");
    Form().SensSlotCount.Type("5");
    EXPECT_EQ(Current().slotStats.size(), 5U);
    UndoItem().Press();
    EXPECT_EQ(Current().slotStats.size(), 3U);
    UndoItem().Press();
    EXPECT_EQ(Current().settings, before);
    EXPECT_EQ(Form().SensContAVTime.Text(), "20");
    EXPECT_EQ(Offered(UndoItem()), "Window of sensor 1 (A)");
}

TEST_F(UndoTest, AnUndoIsSavedAndSentAndTheStepsAreCounted) {
    Measure(1);
    for (std::size_t i = 0; i <= EditHistory::MostSteps; ++i) Edit(std::to_string(i + 1).c_str());
    Measure(1);
    std::size_t steps = 0;
    for (; UndoItem().enabled; ++steps) UndoItem().Press();
    EXPECT_EQ(steps, EditHistory::MostSteps);
    EXPECT_EQ(Form().SensContAVTime.Text(), "1");
    for (int i = 0; i < 8; ++i) Tick();
    EXPECT_NE(folder.Get("Kelvra.INI").find("ContAVAper=.001"), std::string::npos);
    Measure(1);
    EXPECT_FALSE(Current().settingsChanged);
}

TEST_F(UndoTest, OnlyAnOpenStepOfTheSameSensorGathers) {
    EditHistory history;
    const auto add = [&](const char* sensor, std::int16_t count) {
        SensorSettings to = sensors::DefaultSettings();
        to.TSlotCount = count;
        history.Add({sensor, "", SettingsChange{sensors::DefaultSettings(), to}},
                    &Form().SensSlotCount);
    };
    add("A", 1);
    add("B", 2);
    history.EndStep();
    add("B", 3);
    history.Take(Direction::Undo, "B");
    add("B", 4);
    for (const auto& [sensor, steps] : {std::pair("A", 1), std::pair("B", 2)}) {
        int taken = 0;
        while (history.Take(Direction::Undo, sensor)) ++taken;
        EXPECT_EQ(taken, steps) << sensor;
    }
}

TEST_F(UndoTest, EveryFieldHasAName) {
    for (const SetupRow& row : SetupRows()) EXPECT_NE(NameOf(Form(), row), "");
}

}  // namespace kelvra::ui
