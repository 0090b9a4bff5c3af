// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/forms.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "controls/visit.h"

namespace kelvra::forms {
namespace {

void ExpectNewNames(const controls::Control& control, std::set<std::string>& names) {
    EXPECT_TRUE(names.insert(control.Name()).second) << control.Name();
    for (const controls::Control* child : control.Children()) ExpectNewNames(*child, names);
}

TEST(Forms, WindowsStartHiddenWithUniqueNamesAndTwoCloseByRule) {
    Forms forms;
    EXPECT_EQ(forms.Windows().size(), 11U);
    for (controls::Window* window : forms.Windows()) {
        EXPECT_FALSE(window->visible) << window->Name();
        const bool byRule = window == &forms.mdiMain || window == &forms.statusForm;
        EXPECT_EQ(window->closesByRule, byRule) << window->Name();
        EXPECT_EQ(forms.FindFormByName(window->Name()), window);
        std::set<std::string> names;
        ExpectNewNames(*window, names);
    }
}

void ExpectExplained(const controls::Control& control) {
    const auto kind = control.GetKind();
    const bool hasNone = kind == controls::Kind::Frame || kind == controls::Kind::Window ||
                         control.Name().starts_with("line");
    const bool explained = !control.access.explanation.empty() || !control.tooltip->empty();
    EXPECT_NE(explained, hasNone) << control.Name();
    for (const controls::Control* child : control.Children()) ExpectExplained(*child);
}

TEST(Forms, EverythingInTheMainWindowAndTheTableExplainsItself) {
    Forms forms;
    ExpectExplained(forms.mdiMain);
    ExpectExplained(forms.statusForm);
}

// What a screen reader says for it.
std::string NameOf(const controls::Control& control) {
    const controls::Field* field = control.AsField();
    if (field != nullptr && field->captionLabel) return field->captionLabel->caption.Get();
    const std::string caption = controls::Visit(control, [](const auto& own) -> std::string {
        if constexpr (requires { own.caption; })
            return own.caption.Get();
        else
            return {};
    });
    return caption.empty() ? control.access.name : caption;
}

void ExpectNamedAndExplained(const controls::Control& control) {
    if (dynamic_cast<const controls::Focusable*>(&control) != nullptr) {
        const std::string& explanation = control.access.explanation;
        const bool saysMore = !explanation.empty() && !explanation.starts_with("Range:");
        EXPECT_NE(!control.tooltip->empty(), saysMore) << control.Name();
        EXPECT_NE(NameOf(control), "") << control.Name();
    }
    for (const controls::Control* child : control.Children()) ExpectNamedAndExplained(*child);
}

TEST(Forms, WhatTakesTheFocusInADialogHasANameAndSaysWhatItDoes) {
    Forms forms;
    ExpectNamedAndExplained(forms.setupForm);
    ExpectNamedAndExplained(forms.aboutForm);
}

void CollectTopics(const controls::Control& control, std::set<int>& topics) {
    topics.insert(control.access.helpTopic);
    for (const controls::Control* child : control.Children()) CollectTopics(*child, topics);
}

TEST(Forms, EachTopicOfHelpHasItsPage) {
    Forms forms;
    std::set<int> topics;
    for (const controls::Window* window : forms.Windows()) CollectTopics(*window, topics);
    EXPECT_EQ(topics.erase(0), 1U);
    EXPECT_FALSE(topics.empty());
    for (const int topic : topics) {
        const std::string page = KELVRA_GUIDE + std::to_string(topic) + ".html";
        EXPECT_TRUE(std::filesystem::exists(page)) << page;
    }
}

TEST(Forms, FindTellsFoundFromUnknown) {
    Forms forms;
    auto& setup = forms.setupForm;
    const struct {
        const char* name;
        const controls::Control* control;
    } found[] = {
        {"SetupForm", &setup},
        {"SensAvgMode(2)", &setup.SensAvgMode.At(2)},
        {"SetupForm.SensSampFreqLow", &setup.SensSampFreq.At(1)},
        {"lblContAVTime", &*setup.SensContAVTime.captionLabel},
    };
    for (const auto& c : found) {
        const Found got = forms.Find(c.name);
        EXPECT_EQ(got.result, Lookup::Found) << c.name;
        EXPECT_EQ(got.control, c.control) << c.name;
    }
    for (const char* name : {"SensAvgMode(3)", "SensAvgMode(02)", "startit", "SetupForm.StartIt",
                             "NoForm.StartIt", "MDIMain.", ".StartIt", ""})
        EXPECT_EQ(forms.Find(name).result, Lookup::Unknown) << name;
}

}  // namespace
}  // namespace kelvra::forms
