// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/setup_dialog.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/whole_kelvra.h"

namespace kelvra::ui {

using sensors::SensorSettings;

class SetupDialogTest : public testing::Test, public test::WholeKelvra {
protected:
    void SetUp() override { StartWith(2); }

    forms::SetupForm& Form() { return program->forms.setupForm; }
    sensors::SensorEntry& Entry(int slot = 0) { return program->table[slot]; }
    SensorSettings& Settings() { return Entry().settings; }
    // The settings of which a and b differ.
    static std::string Differing(const SensorSettings& a, const SensorSettings& b) {
        std::string names;
        for (const sensors::SettingsField& field : sensors::SettingsFields())
            std::visit(
                [&](auto member) {
                    if (a.*member != b.*member) names += std::string(field.name) + ' ';
                },
                field.member);
        return names;
    }

    // What the user does to a control so that it changes.
    static void Act(controls::TextBox& box) { box.Type(box.Text() == "2" ? "3" : "2"); }
    static void Act(controls::CheckBox& box) { box.Toggle(); }
    static void Act(controls::List& list) { list.Choose(list.Index() == 1 ? 0 : 1); }
    static void Act(controls::OptionGroup& group) { group.Select(group.Selected() == 1 ? 0 : 1); }
};

TEST_F(SetupDialogTest, EachFieldStoresItsOwnSettingAndNoOther) {
    // The two that decide what is displayed have no field.
    EXPECT_EQ(std::size(SetupRows()) + 2, std::size(sensors::SettingsFields()));
    for (const SetupRow& row : SetupRows()) {
        const bool always = row.rule == SetupRule::AlwaysChecked;
        Settings() = sensors::DefaultSettings();
        Settings().CorrFreq = true;
        Settings().TSlotCount = 4;
        Settings().TrigDelay = 0.0012345;  // is not rounded by other edits
        Settings().ContAVAper = 1.0 / 3;
        Settings().TSlotExclDispInSlot = 7;  // these can't be shown
        Settings().AvgMode = 9;
        Settings().ScopePoints = -5;
        program->windows.setupDialog.ShowCurrent();
        Entry().settingsChanged = false;
        const SensorSettings before = Settings();
        std::visit([&](auto field) { Act(Form().*field); }, row.field);
        std::string name;
        for (const sensors::SettingsField& field : sensors::SettingsFields())
            if (field.member == row.member) name = std::string(field.name) + ' ';
        EXPECT_EQ(Differing(before, Settings()), always ? "" : name);
        EXPECT_TRUE(Entry().settingsChanged) << name;
    }
}

TEST_F(SetupDialogTest, WhatIsTypedIsStoredInTheUnitOfTheSetting) {
    fake.computer.numbers = {",", "."};
    const struct {
        controls::TextBox& box;
        const char* typed;
        double SensorSettings::*setting;
        double stored;
        bool faulty;
    } cases[] = {
        {Form().SensContAVTime, "12.5", &SensorSettings::ContAVAper, 0.0125, false},
        {Form().SensContAVTime, "12,5", &SensorSettings::ContAVAper, 0.0125, false},
        {Form().SensContAVTime, "1,000.5", &SensorSettings::ContAVAper, 0.001, true},
        {Form().SensContAVTime, "100us", &SensorSettings::ContAVAper, 1e-4, false},
        {Form().SensContAVTime, "12abc", &SensorSettings::ContAVAper, 0.012, true},
        {Form().SensContAVTime, "abc", &SensorSettings::ContAVAper, 0, true},
        {Form().SensContAVTime, "", &SensorSettings::ContAVAper, 0, true},
        {Form().SensAvgMaxTime, "500 ms", &SensorSettings::AvgMaxSetTime, 0.5, false},
        {Form().SensBurstDropOut, "2 ms", &SensorSettings::BurstAVDropTol, 0.002, false},
        {Form().CorrFreqValue, "1.5 GHz", &SensorSettings::CorrFreqVal, 1.5e9, false},
        {Form().CorrFreqValue, "50", &SensorSettings::CorrFreqVal, 5e7, false},
        {Form().SensTriggerDelay, "1.2345", &SensorSettings::TrigDelay, 0.001, false},
        {Form().CorrFreqValue, "2 ghz", &SensorSettings::CorrFreqVal, 2e9, false},
        {Form().SensTriggerLevel, "\u221221dbm", &SensorSettings::TrigLevel, -21, false},
        {Form().CorrDutyValue, "50 %", &SensorSettings::CorrDutyVal, 50, false},
        {Form().SensTriggerLevel, "-20 ms", &SensorSettings::TrigLevel, -20, true},
        {Form().SensTriggerLevel, "1e999", &SensorSettings::TrigLevel, -20, true},  // stays
    };
    for (const auto& c : cases) {
        c.box.Type(c.typed);
        EXPECT_DOUBLE_EQ(Settings().*c.setting, c.stored) << c.box.Name() << ' ' << c.typed;
        EXPECT_EQ(!c.box.fault->empty(), c.faulty) << c.box.Name() << ' ' << c.typed;
    }
    Form().SensAvgCount.Type("3000000000");
    EXPECT_FALSE(Form().SensAvgCount.fault->empty());
    EXPECT_EQ(Settings().AvgManCount, sensors::DefaultSettings().AvgManCount);
}

TEST_F(SetupDialogTest, BothEndsOfARangeCanBeStored) {
    const auto type = [this](controls::TextField& field, double number, const SetupRow& row) {
        const std::string text = util::TrimmedNumberText(number);
        field.Type(text);
        EXPECT_EQ(field.fault.Get(), "") << field.Name() << ' ' << text;
        const double stored = std::visit(
            [this](auto member) { return static_cast<double>(Settings().*member); }, row.member);
        EXPECT_EQ(ShownText(stored, row), ShownText(number / row.unit.shown * row.unit.stored, row))
            << field.Name();
    };
    int known = 0;
    for (const SetupRow& row : SetupRows()) {
        const auto* member = std::get_if<controls::TextField forms::SetupForm::*>(&row.field);
        if (member == nullptr || !(Form().**member).range.Known()) continue;
        controls::TextField& field = Form().**member;
        ++known;
        type(field, field.range.least, row);
        if (std::isfinite(field.range.most)) type(field, field.range.most, row);
    }
    EXPECT_GT(known, 20);
}

TEST_F(SetupDialogTest, ASlotCountBelowOneBecomesOneAndTheSlotsAreListed) {
    for (const char* typed : {"", "abc", "0", "-3"}) {
        Form().SensSlotCount.Type("7");
        EXPECT_EQ(Form().ShowExclInTSlot.Count(), 7);
        Form().SensSlotCount.Type(typed);
        EXPECT_EQ(Form().SensSlotCount.Text(), "1") << typed;
        EXPECT_EQ(Settings().TSlotCount, 1) << typed;
        EXPECT_EQ(Form().ShowExclInTSlot.Text(), "1") << typed;
    }
}

TEST_F(SetupDialogTest, WhatIsShownAfterAnEditIsWhatIsStored) {
    Settings().TSlotCount = 16;
    Settings().TSlotExclDispInSlot = 11;
    program->windows.setupDialog.ShowCurrent();
    for (const char* typed : {"1", "16"}) Form().SensSlotCount.Type(typed);
    EXPECT_EQ(Settings().TSlotExclDispInSlot, 11);
    EXPECT_EQ(Form().ShowExclInTSlot.Text(), "12");
    Form().SensTriggerDelay.Type("1.2345");
    Form().SensTriggerDelay.PressKey("Enter");
    EXPECT_EQ(Form().SensTriggerDelay.Text(), "1");
    Form().CorrFreqEnable.Toggle();
    EXPECT_TRUE(Form().CorrFreqEnable.Checked());
    Form().SensInitCont.Toggle();
    EXPECT_TRUE(Settings().ContMeas);
    fake.dialogs.fileAnswer = folder.Path("x.ini");
    program->forms.mdiMain.Save_Sensor_Settings.Press();
    EXPECT_EQ(Form().SensInitCont.Checked(), Settings().ContMeas);
    Entry().history.Add(1e-3);
    Form().SensMode.Choose(Form().SensMode.Index());
    EXPECT_EQ(Entry().history.Index(), 0);  // the same mode loses nothing
}

TEST_F(SetupDialogTest, TooManyPointsAreAnErrorOfTheirSensorAndAreCutInSimulation) {
    const auto strip = [this] { return Form().lblInputError.caption.Get(); };
    const std::string tooMany = "A: Scope points number\r\ncannot exceed 1024.";
    Form().ScopePoints.Type("1025");
    EXPECT_EQ(Settings().ScopePoints, 1025);
    EXPECT_EQ(strip(), tooMany);
    EXPECT_EQ(Form().GeneralFrame.place->top, Form().Frame1.place->height);
    Entry(1).fetchError = "Fetch: other";
    program->windows.errorStrip.Refresh();
    EXPECT_EQ(strip(), "B: Fetch: other");
    Entry(1).fetchError.clear();
    Settings().ScopePoints = 312;  // as a file does
    program->windows.setupDialog.ShowCurrent();
    EXPECT_EQ(strip(), "");
    Form().ScopePoints.Type("99999");  // can't be stored
    EXPECT_EQ(strip(), tooMany);
    Form().ScopePoints.Type("1024");
    EXPECT_EQ(strip(), "");
    driver.devices.clear();
    Tick();
    Form().ScopePoints.Type("2000");
    EXPECT_EQ(Form().ScopePoints.Text(), "1024");
    EXPECT_EQ(Settings().ScopePoints, 1024);
    EXPECT_FALSE(Form().InputErrorFrame.visible);
}

TEST_F(SetupDialogTest, TheModeDecidesWhatTheDialogAndTheDisplaysShow) {
    const struct {
        int mode;
        controls::Frame& frame;
        bool traceScale, slotScale;
    } cases[] = {
        {sensors::Trace, Form().ScopeFrame, true, false},
        {sensors::TimeSlot, Form().TimeSlotFrame, false, true},
        {sensors::Burst, Form().BurstAVFrame, false, false},
        {sensors::ContinuousAverage, Form().ContAVFrame, false, false},
    };
    for (const auto& c : cases) {
        Form().SensMode.Choose(Form().SensMode.IndexOfData(c.mode));
        EXPECT_EQ(Settings().Mode, c.mode);
        int visible = 0;
        for (const controls::Frame* frame :
             {&Form().ContAVFrame, &Form().BufferAVFrame, &Form().TimeSlotFrame,
              &Form().BurstAVFrame, &Form().ScopeFrame})
            visible += frame->visible ? 1 : 0;
        EXPECT_TRUE(c.frame.visible && visible == 1) << c.mode;
        EXPECT_EQ(Form().AverageFrame.visible, !c.traceScale);
        EXPECT_EQ(Form().txtMinScope.visible, c.traceScale);
        EXPECT_EQ(Form().txtMinTime.visible, !c.traceScale);
        EXPECT_EQ(program->windows.setupDialog.TraceScaleShown(), c.traceScale);
        EXPECT_EQ(program->windows.setupDialog.TimeSlotScaleShown(), c.slotScale);
        EXPECT_EQ(program->forms.scopeDisp.visible, c.traceScale);
        EXPECT_EQ(program->forms.timeSlotDisp.visible, c.slotScale);
        EXPECT_EQ(Form().CorrDutyEnable.enabled, c.mode == sensors::ContinuousAverage);
    }
}

TEST_F(SetupDialogTest, ChoosingSensorsAndTicksMarkNothingAndLeaveATypedTextAlone) {
    Entry(1).settings.Mode = sensors::Trace;
    Entry(1).settings.TSlotCount = 3;
    for (const int slot : {1, 0, 1}) {
        Form().SensSelect.Choose(Form().SensSelect.IndexOfData(slot));
        Form().SensSelect.Open();
        Tick();
        EXPECT_EQ(Form().SensTypeInfo.caption.Get(), slot == 0 ? "PS-101, S/N 1" : "PS-101, S/N 2");
        EXPECT_EQ(Form().SensMode.Data(), Entry(slot).settings.Mode);
        EXPECT_FALSE(Entry(0).settingsChanged || Entry(1).settingsChanged);
    }
    Form().SensContAVTime.Type("5x");
    driver.devices[1].name = "New";
    Tick();
    EXPECT_EQ(Form().SensContAVTime.Text(), "5x");
    Form().SensSelect.Choose(Form().SensSelect.IndexOfData(0));
    EXPECT_EQ(Form().SensContAVTime.Text(), "100");
    EXPECT_TRUE(Form().SensContAVTime.fault->empty());
}

TEST_F(SetupDialogTest, EditsAreSavedSomeSecondsAfterTheLastOneAlsoWhileMeasuring) {
    fake.events.roundTime = std::chrono::milliseconds(100);
    fake.events.onRound = [this](int round) {
        const bool saved = folder.Get("Kelvra.INI").find("7E-03") != std::string::npos ||
                           folder.Get("Kelvra.INI").find(".007") != std::string::npos;
        if (round == 5) Form().SensContAVTime.Type("7");
        if (round == 25) Form().SensContAVSmooth.Toggle();
        if (round > 5 && round < 50) {
            EXPECT_FALSE(saved) << round;
        }
        if (round == 65) {
            EXPECT_TRUE(saved);
            EXPECT_FALSE(Entry().settingsChanged);  // the sensor has them, too
            PressStop();
        }
    };
    PressStart();
}

TEST_F(SetupDialogTest, TheDialogStaysWithItsSensorUntilThatIsGone) {
    const auto shown = [this] { return Form().SensTypeInfo.caption.Get(); };
    Form().SensSelect.Choose(1);
    Entry(0).enabled = false;
    Measure(1);  // Start puts the second sensor first
    EXPECT_EQ(shown(), "PS-101, S/N 2");
    Form().SensContAVTime.Type("7");
    EXPECT_EQ(Entry(0).sensorId, "PS-101;2");
    EXPECT_EQ(Entry(0).settings.ContAVAper, 0.007);
    EXPECT_EQ(Entry(1).settings.ContAVAper, 0.1);
    Form().SensContAVTime.Type("8x");
    Entry(0).enabled = false;  // is in no list, and stays the current one
    Tick();
    EXPECT_EQ(Form().SensContAVTime.Text(), "8x");
    driver.devices.pop_back();
    Tick();
    EXPECT_EQ(shown(), "PS-101, S/N 1");
    EXPECT_EQ(Form().SensContAVTime.Text(), "100");
    driver.devices.clear();
    Tick();
    ASSERT_TRUE(program->table.simulationMode);
    Form().SensContAVTime.Type("9");
    EXPECT_EQ(Settings().ContAVAper, 0.009);
    driver.devices = {{"A", "PS-101", "1"}};
    Tick();
    EXPECT_EQ(Settings().ContAVAper, 0.1);
}

TEST_F(SetupDialogTest, TheDisplayWhoseScalesAreShownFollowsTheDialog) {
    controls::List& traces = program->forms.scopeDisp.Scope_Sensorselect;
    for (const int slot : {1, 0}) {
        Form().SensSelect.Choose(slot);
        Form().SensMode.Choose(Form().SensMode.IndexOfData(sensors::Trace));
    }
    for (const int slot : {1, 0}) {
        Form().SensSelect.Choose(slot);
        EXPECT_EQ(traces.Data(), slot);
    }
    Form().SensMode.Choose(Form().SensMode.IndexOfData(sensors::ContinuousAverage));
    Form().SensSelect.Choose(1);
    EXPECT_EQ(traces.Data(), 1);
    EXPECT_EQ(traces.Count(), 1);
}

TEST_F(SetupDialogTest, WithoutASensorNothingIsStored) {
    program->table.entries.assign(program->table.entries.size(), {});
    const SensorSettings before = Settings();
    Form().SensContAVTime.Type("7");
    Form().SensMode.Choose(1);
    Form().txtMinTime.Type("-1");
    Form().SensTriggerNow.Press();
    EXPECT_EQ(Differing(before, Settings()), "");
    EXPECT_FALSE(Entry().settingsChanged);
}

TEST_F(SetupDialogTest, AnEditInTheMiddleOfATransferIsSentInTheNextPass) {
    int sent = 0;
    driver.onCall = [&](std::string_view name) {
        if (name == "psdrv_trigger_setSource" && ++sent == 1) Form().SensContAVTime.Type("7");
    };
    Measure(2);
    EXPECT_EQ(driver.calls.back(), "psdrv_close(12)");
    int apertures = 0;
    for (const std::string& call : driver.calls)
        apertures += call == "psdrv_chan_setContAvAperture(12, 1, 0.007)" ? 1 : 0;
    EXPECT_GE(apertures, 1);
    EXPECT_EQ(driver.Count("psdrv_chan_reset"), 3);  // the second sensor's once
    EXPECT_FALSE(Entry().settingsChanged);
}

TEST_F(SetupDialogTest, ScalesTriggerPagesAndHelpFollowTheirControls) {
    program->table.scaling[0].minTime = 1.0 / 3;
    program->windows.setupDialog.ShowCurrent();
    Form().txtMaxTime.Type("7.5");
    Form().txtMaxScope.Type("1e999");
    EXPECT_FALSE(Form().txtMaxScope.fault->empty());
    EXPECT_EQ(program->table.scaling[0].maxScope, 5);
    EXPECT_EQ(program->table.scaling[0].minTime, 1.0 / 3);
    Form().chkAutoScaleScope.Toggle();
    EXPECT_EQ(program->table.scaling[0].maxTime, 7.5);
    for (const bool crossed : {true, false}) {
        Form().txtMinTime.Type(crossed ? "8" : "7");
        EXPECT_EQ(Form().txtMinTime.fault->empty(), !crossed);
        EXPECT_EQ(Form().txtMaxTime.fault->empty(), !crossed);
    }
    EXPECT_TRUE(program->table.scaling[0].autoScaleScope);
    Form().SensTrigger.Choose(0);
    EXPECT_TRUE(Form().SensTriggerNow.visible);
    Form().SensTriggerNow.Press();
    EXPECT_TRUE(Entry().triggerNowRequest);
    Form().PageSelect.Select(4);
    EXPECT_TRUE(Form().AdvancedFrame.visible);
    EXPECT_FALSE(Form().GeneralFrame.visible);
    Form().PersonResizes(20000, 20000);
    EXPECT_EQ(Form().place->width, Form().Frame1.place->width + 100);
    Form().SensContAVTime.PressKey("F1");
    Form().SensRange.PressKey("F1");
    Form().CorrGammaAmp.PressKey("F1");  // has no page
    program->forms.timeForm.TimeIntervalBox.PressKey("F1");
    ASSERT_EQ(fake.dialogs.helpTopics, (std::vector<int>{7151, 7141, 1114}));
}

TEST_F(SetupDialogTest, HelpIsAPageUnlessTheCompiledFileIsThereWithAViewer) {
    const struct { bool file, viewer; } cases[] = {{false, true}, {true, false}, {true, true}};
    for (const auto& c : cases) {
        if (c.file) folder.Put("KelvraHelp.chm", "");
        fake.computer.compiledHelp = c.viewer;
        Form().SensRange.PressKey("F1");
        EXPECT_EQ(fake.dialogs.helpPage.path, "guide/7141.html");
        EXPECT_EQ(fake.dialogs.helpPage.compiledFile, folder.Path("KelvraHelp.chm"));
        EXPECT_EQ(fake.dialogs.helpPage.opensCompiled, c.file && c.viewer);
        program->forms.mdiMain.Helpfunction.Press();
        EXPECT_EQ(fake.dialogs.helpPage.path, "guide/index.html");
    }
}

}  // namespace kelvra::ui
