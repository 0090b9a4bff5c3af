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

TEST(Forms, WindowsStartHiddenWithUniqueNamesAndTwoCloseByRule) {
    Forms forms;
    EXPECT_EQ(forms.Windows().size(), 9U);
    for (controls::Window* window : forms.Windows()) {
        EXPECT_FALSE(window->visible) << window->Name();
        const bool byRule = window == &forms.mdiMain || window == &forms.statusForm;
        EXPECT_EQ(window->closesByRule, byRule) << window->Name();
        EXPECT_EQ(forms.FindFormByName(window->Name()), window);
        std::set<std::string> names;
        ExpectNewNames(*window, names);
    }
    EXPECT_EQ(forms.FindFormByName("StartIt"), nullptr);
}

TEST(Forms, FindTellsApartFoundUnknownAndNotUnique) {
    Forms forms;
    auto& setup = forms.setupForm;
    const std::tuple<const char*, const controls::Control*, int> found[] = {
        {"StartIt", &forms.mdiMain.StartIt, -1},
        {"MDIMain.StartIt", &forms.mdiMain.StartIt, -1},
        {"SetupForm", &setup, -1},
        {"SensAvgMode(2)", &setup.SensAvgMode, 2},
        {"SetupForm.ScopeAvgMode(0)", &setup.ScopeAvgMode, 0},
        {"Option5", &setup.PageSelect, 4},
        {"SensRangeManual", &setup.SensRange, 1},
        {"SetupForm.SensSampFreqLow", &setup.SensSampFreq, 1},
        {"TimeSlotDisp.Display", &forms.timeSlotDisp.Display, -1},
    };
    for (const auto& [name, control, member] : found) {
        const Found got = forms.Find(name);
        EXPECT_EQ(got.result, Lookup::Found) << name;
        EXPECT_EQ(got.control, control) << name;
        EXPECT_EQ(got.member, member) << name;
    }
    for (const char* name : {"Display", "Frame1"})
        EXPECT_EQ(forms.Find(name).result, Lookup::NotUnique) << name;
    for (const char* name : {"SensAvgMode(3)", "SensAvgMode(02)", "startit", "SetupForm.StartIt",
                             "NoForm.StartIt", "MDIMain.", ".StartIt", ""})
        EXPECT_EQ(forms.Find(name).result, Lookup::Unknown) << name;
}

}  // namespace
}  // namespace kelvra::forms
