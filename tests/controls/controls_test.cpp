// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "controls/grid.h"
#include "controls/kinds.h"
#include "controls/list.h"
#include "controls/option_group.h"
#include "controls/range.h"

namespace kelvra::controls {
namespace {

struct Sample : Window {
    explicit Sample(Changes& changes) : Window(changes, "Sample", "", {}) {}

    TextBox text{*this, "text"};
    CheckBox check{*this, "check", "Check"};
    OptionGroup options{*this, "options", {{"a", "A"}, {"b", "B"}, {"c", "C"}}};
    List list{*this, "list", {{"x", 7}, {"y", 8}, {"z", 9}}, 0};
    Grid grid{*this, "grid", 2, 2};
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
        {"other mark", [&] { w.check.SetChecked(true); }, 1},
        {"other option", [&] { w.options.SetSelected(2); }, 1},
        {"no such option", [&] { w.options.SetSelected(3); }, 0},
        {"selected the same", [&] { w.options.At(2).Press(); }, 1},
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
}

TEST(Range, IsASentenceInTheUnitOrInWhatIsCounted) {
    const struct {
        Range range;
        const char* unit;
        const char* sentence;
    } cases[] = {
        {{}, "dB", ""},
        {{0, 100}, "%", "Range: 0 to 100 %."},
        {{1, 1024, "points"}, "", "Range: 1 to 1024 points."},
        {{-0.5}, "s", "Range: at least -0.5 s."},
        {{0, Range::Unlimited, "", true}, "ms", "Range: more than 0 ms."},
    };
    for (const auto& c : cases) EXPECT_EQ(RangeSentence(c.range, c.unit), c.sentence);
}

}  // namespace
}  // namespace kelvra::controls
