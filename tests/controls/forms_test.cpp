// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/forms.h"

#include <gtest/gtest.h>

#include <set>

namespace kelvra::forms {
namespace {

void ExpectNewNames(const controls::Control& control, std::set<std::string>& names) {
    EXPECT_TRUE(names.insert(control.Name()).second) << control.Name();
    if (const auto* group = dynamic_cast<const controls::OptionGroup*>(&control)) {
        for (const auto& option : group->Options())
            EXPECT_TRUE(names.insert(option.name).second) << option.name;
    }
    for (const controls::Control* child : control.Children()) ExpectNewNames(*child, names);
}

TEST(Forms, NamesAreUniqueInEachWindow) {
    Forms forms;
    for (const controls::Window* window : forms.Windows()) {
        std::set<std::string> names;
        ExpectNewNames(*window, names);
    }
}

TEST(Forms, WindowsStartHiddenAndOnlyTheMainOneClosesByRule) {
    Forms forms;
    EXPECT_EQ(forms.Windows().size(), 9U);
    for (controls::Window* window : forms.Windows()) {
        EXPECT_FALSE(window->Visible) << window->Name();
        EXPECT_EQ(window->closesByRule, window == &forms.mdiMain) << window->Name();
        EXPECT_EQ(forms.FindFormByName(window->Name()), window);
    }
    EXPECT_EQ(forms.FindFormByName("mdiMain"), nullptr);
    EXPECT_EQ(forms.FindFormByName("StartIt"), nullptr);
}

TEST(Forms, FindTellsApartFoundUnknownAndNotUnique) {
    Forms forms;
    const struct {
        const char* name;
        Lookup result;
        const controls::Control* control;
        int member;
    } cases[] = {
        {"StartIt", Lookup::Found, &forms.mdiMain.StartIt, -1},
        {"MDIMain.StartIt", Lookup::Found, &forms.mdiMain.StartIt, -1},
        {"SetupForm", Lookup::Found, &forms.setupForm, -1},
        {"SensAvgMode", Lookup::Found, &forms.setupForm.SensAvgMode, -1},
        {"SensAvgMode(2)", Lookup::Found, &forms.setupForm.SensAvgMode, 2},
        {"SetupForm.ScopeAvgMode(0)", Lookup::Found, &forms.setupForm.ScopeAvgMode, 0},
        {"Option1", Lookup::Found, &forms.setupForm.PageSelect, 0},
        {"Option5", Lookup::Found, &forms.setupForm.PageSelect, 4},
        {"SensRangeManual", Lookup::Found, &forms.setupForm.SensRange, 1},
        {"SetupForm.SensSampFreqLow", Lookup::Found, &forms.setupForm.SensSampFreq, 1},
        {"TimeSlotDisp.Display", Lookup::Found, &forms.timeSlotDisp.Display, -1},
        {"TimeForm.Frame1", Lookup::Found, &forms.timeForm.Frame1, -1},
        {"Display", Lookup::NotUnique, nullptr, -1},
        {"Frame1", Lookup::NotUnique, nullptr, -1},
        {"SensAvgMode(3)", Lookup::Unknown, nullptr, -1},
        {"SensAvgMode(02)", Lookup::Unknown, nullptr, -1},
        {"startit", Lookup::Unknown, nullptr, -1},
        {"SetupForm.StartIt", Lookup::Unknown, nullptr, -1},
        {"NoForm.StartIt", Lookup::Unknown, nullptr, -1},
        {"MDIMain.", Lookup::Unknown, nullptr, -1},
        {".StartIt", Lookup::Unknown, nullptr, -1},
        {"", Lookup::Unknown, nullptr, -1},
    };
    for (const auto& c : cases) {
        const Found found = forms.Find(c.name);
        EXPECT_EQ(found.result, c.result) << '"' << c.name << '"';
        EXPECT_EQ(found.control, c.control) << '"' << c.name << '"';
        EXPECT_EQ(found.member, c.member) << '"' << c.name << '"';
    }
}

TEST(Forms, ConnectionIndicatorStaysWhenTheNoticeIsHidden) {
    Forms forms;
    EXPECT_FALSE(forms.mdiMain.lblMeasAwait.EffectivelyVisible());
    EXPECT_TRUE(forms.mdiMain.picConnected.EffectivelyVisible());
    EXPECT_TRUE(forms.mdiMain.ConSensors.EffectivelyVisible());
    EXPECT_FALSE(forms.mdiMain.StopIt.EffectivelyEnabled());
}

TEST(Forms, SetupDialogStartsOnItsFirstPageWithTheFirstMode) {
    Forms forms;
    const SetupForm& setup = forms.setupForm;
    const struct {
        const controls::Frame* frame;
        bool visible;
        int left, top;
    } frames[] = {
        {&setup.GeneralFrame, true, 0, 1935},    {&setup.ModeFrame, false, 0, 1935},
        {&setup.TriggerFrame, false, 0, 1935},   {&setup.CorrectionFrame, false, 0, 1935},
        {&setup.AdvancedFrame, false, 0, 1935},  {&setup.ContAVFrame, true, 120, 240},
        {&setup.BufferAVFrame, false, 120, 240}, {&setup.TimeSlotFrame, false, 120, 240},
        {&setup.BurstAVFrame, false, 120, 240},  {&setup.ScopeFrame, false, 120, 240},
    };
    for (const auto& f : frames) {
        EXPECT_EQ(f.frame->Visible, f.visible) << f.frame->Name();
        EXPECT_EQ(f.frame->Place->left, f.left) << f.frame->Name();
        EXPECT_EQ(f.frame->Place->top, f.top) << f.frame->Name();
    }
    EXPECT_EQ(setup.Place->width, setup.Frame1.Place->width + 100);
    EXPECT_EQ(setup.ModeFrame.Place->height, 6055);
    EXPECT_EQ(setup.SensMode.IndexOfData(4), 4);
    EXPECT_EQ(setup.SensMode.Text(), "ContAv");
    EXPECT_EQ(setup.SensTrigger.Text(), "Immediate");
    EXPECT_EQ(setup.SensTrigger.Count(), 5);
    EXPECT_EQ(setup.SensRangeValue.Text(), "path 3");
    EXPECT_EQ(setup.SensTriggerSlope.Options().at(1).caption, "Negativ");
}

}  // namespace
}  // namespace kelvra::forms
