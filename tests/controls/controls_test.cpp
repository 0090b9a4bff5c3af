// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "controls/grid.h"
#include "controls/kinds.h"
#include "controls/list.h"
#include "controls/option_group.h"

namespace kelvra::controls {
namespace {

struct Sample : Window {
    explicit Sample(Changes& changes) : Window(changes, "Sample", "", {}) {}

    Frame outer{*this, "outer"};
    Frame inner{outer, "inner"};
    TextBox text{inner, "text"};
    CheckBox check{inner, "check", "Check"};
    OptionGroup options{inner, "options", std::vector<std::string>{"a", "b", "c"}};
    List list{inner, "list", {{"x", 7}, {"y", 8}, {"z", 9}}, 0};
    Grid grid{inner, "grid", 2, 2};
};

struct Step {
    const char* what;
    std::function<void()> act;
    int events;
};

class Controls : public testing::Test {
protected:
    Controls() {
        window_.text.SetText("1");
        window_.text.change.Connect([this] { ++raised_; });
        window_.check.click.Connect([this] { ++raised_; });
        window_.options.click.Connect([this] { ++raised_; });
        window_.list.click.Connect([this] { ++raised_; });
        window_.resize.Connect([this] { ++raised_; });
    }

    Changes changes_;
    Sample window_{changes_};
    int raised_ = 0;
};

TEST_F(Controls, ProgramsWriteRaisesOnlyForAnotherValueAndAPersonsActAlways) {
    Sample& w = window_;
    // clang-format off
    const Step steps[] = {
        {"same text", [&] { w.text.SetText("1"); }, 0},
        {"other text", [&] { w.text.SetText("2"); }, 1},
        {"same mark", [&] { w.check.SetChecked(false); }, 0},
        {"other mark", [&] { w.check.SetChecked(true); }, 1},
        {"toggled", [&] { w.check.Toggle(); }, 1},
        {"same option", [&] { w.options.SetSelected(0); }, 0},
        {"other option", [&] { w.options.SetSelected(2); }, 1},
        {"no such option", [&] { w.options.SetSelected(3); }, 0},
        {"selected the same", [&] { w.options.At(2).Press(); }, 1},
        {"same index", [&] { w.list.SetIndex(0); }, 0},
        {"other index", [&] { w.list.SetIndex(1); }, 1},
        {"index beyond", [&] { w.list.SetIndex(3); }, 1},
        {"chosen again", [&] { w.list.Choose(1); }, 1},
        {"filled", [&] { w.list.Fill({{"p", 1}}); EXPECT_EQ(w.list.Index(), -1); }, 0},
        {"preselected, cleared", [&] { w.list.Preselect(0); w.list.Clear(); }, 0},
        {"placed", [&] { w.place = Geometry{1, 2, 3, 4}; }, 0},
        {"resized by a person", [&] { w.PersonResizes(5, 6); }, 1},
    };
    // clang-format on
    for (const Step& step : steps) {
        raised_ = 0;
        step.act();
        EXPECT_EQ(raised_, step.events) << step.what;
    }
    EXPECT_EQ(w.place.Get(), (Geometry{1, 2, 5, 6}));
}

TEST_F(Controls, TextIsCommittedByEnterOrByLeavingAfterAnEdit) {
    int commits = 0;
    TextBox& text = window_.text;
    text.commit.Connect([&] { ++commits; });
    const Step steps[] = {
        {"left unedited", [&] { text.Leave(); }, 0},
        {"written by the program", [&] { text.SetText("9"), text.Leave(); }, 0},
        {"typed, another key", [&] { text.Type("5"), text.PressKey("F1"); }, 0},
        {"left after typing", [&] { text.Leave(); }, 1},
        {"left again", [&] { text.Leave(); }, 0},
        {"entered, left", [&] { text.Type("6"), text.PressKey("Enter"), text.Leave(); }, 1},
    };
    for (const Step& step : steps) {
        commits = 0;
        step.act();
        EXPECT_EQ(commits, step.events) << step.what;
    }
}

TEST_F(Controls, GridGrowsToTheCellAndKeepsWhatItHas) {
    SetGridCell(window_.grid, 1, 1, "kept", Align::Centre, true, false, Cyan);
    SetGridCell(window_.grid, 4, 2, "new", Align::Left, false, false);
    EXPECT_EQ(window_.grid.Rows(), 5);
    EXPECT_EQ(window_.grid.Columns(), 3);
    SetGridCell(window_.grid, 1, 1, "kept too", Align::Left, false, false);
    EXPECT_EQ(window_.grid.At(1, 1).look.back, Cyan);
    SetGridCell(window_.grid, -1, 0, "nowhere", Align::Left, false, false);
    EXPECT_EQ(window_.grid.Rows(), 5);
    window_.grid.SetRows(2);
    EXPECT_EQ(window_.grid.TakeChangedCells(), (std::vector<std::pair<int, int>>{{1, 1}}));
    EXPECT_TRUE(window_.grid.TakeChangedCells().empty());
}

TEST_F(Controls, CellShowsWhatWasWrittenLastBeItTextOrFigure) {
    const util::NumberForm form{",", ""};
    const auto write = [&](const auto& content) {
        SetGridCell(window_.grid, 1, 1, content, Align::Left, false, false);
        return !window_.grid.TakeChangedCells().empty();
    };
    const auto shown = [&] { return window_.grid.At(1, 1).Text(); };
    EXPECT_TRUE(write(util::FixedFigure(-1.5, form)));
    EXPECT_FALSE(write(util::FixedFigure(-1.5, form)));
    EXPECT_EQ(shown(), "-1,500");
    EXPECT_TRUE(write(util::ScientificFigure(-1.5, form)));
    EXPECT_EQ(shown(), "-1,5000E+00");
    EXPECT_TRUE(write(std::string_view("")));
    EXPECT_EQ(shown(), "");
    EXPECT_TRUE(write(util::CountFigure(64, form)));
    EXPECT_EQ(shown(), "64");
}

TEST_F(Controls, ChangedControlIsListedOnceUntilTaken) {
    changes_.Take();
    int firsts = 0;
    changes_.onFirst = [&] { ++firsts; };
    window_.text.SetText("1");
    EXPECT_TRUE(changes_.Take().empty());
    window_.text.SetText("2");
    window_.check.enabled = false;
    window_.text.visible = false;
    EXPECT_EQ(changes_.Take(), (std::vector<Control*>{&window_.text, &window_.check}));
    EXPECT_EQ(firsts, 1);
}

TEST_F(Controls, OptionIsReachedAndMarkedAloneAndThroughItsGroup) {
    OptionGroup& group = window_.options;
    Option& option = group.At(1);
    std::string keys;
    option.keyDown.Connect([&](const Key& key) { keys += key; });
    group.PressKey("F1");  // option 0 has the focus
    changes_.Take();
    option.Press();
    EXPECT_EQ(changes_.Take(), (std::vector<Control*>{&group.At(0), &option, &group}));
    EXPECT_TRUE(option.Checked() && !group.At(0).Checked());
    group.PressKey("F2");
    EXPECT_EQ(keys, "F2");
    option.enabled = false;
    EXPECT_TRUE(!option.EffectivelyEnabled() && group.At(0).EffectivelyEnabled());
    group.enabled = false;
    EXPECT_FALSE(group.At(0).EffectivelyEnabled());
}

TEST(Access, MnemonicIsTheStartOfAWordWhereOneBeginsWithIt) {
    const struct {
        const char* text;
        char mnemonic;
        std::size_t place;
    } cases[] = {
        {"Stop", 't', 1},
        {"Settings always on top", 't', 19},
        {"Exit", 'X', 1},
        {"Zero", 'q', std::string::npos},
    };
    for (const auto& c : cases) EXPECT_EQ(MnemonicPlace(c.text, c.mnemonic), c.place) << c.text;
}

TEST_F(Controls, FramesAroundDisableAndHideButWindowsDoNot) {
    EXPECT_FALSE(window_.visible);
    EXPECT_TRUE(window_.text.EffectivelyVisible() && window_.text.EffectivelyEnabled());
    window_.outer.enabled = false;
    window_.outer.visible = false;
    EXPECT_FALSE(window_.text.EffectivelyEnabled() || window_.text.EffectivelyVisible());
    EXPECT_TRUE(window_.text.enabled);
    window_.enabled = false;
    window_.outer.enabled = true;
    EXPECT_TRUE(window_.text.EffectivelyEnabled());
    for (const bool byRule : {false, true}) {  // closing hides it unless a rule answers
        window_.visible = true;
        window_.closesByRule = byRule;
        window_.PersonCloses();
        EXPECT_EQ(window_.visible, byRule);
    }
}

}  // namespace
}  // namespace kelvra::controls
