// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "controls/graph.h"
#include "controls/grid.h"
#include "controls/kinds.h"
#include "controls/list.h"

namespace kelvra::controls {
namespace {

struct Sample : Window {
    explicit Sample(Changes& changes) : Window(changes, "Sample", "", {}) {}

    Frame outer{*this, "outer"};
    Frame inner{outer, "inner"};
    TextBox text{inner, "text", "1"};
    CheckBox check{inner, "check", "Check"};
    OptionGroup options{inner, "options", std::vector<std::string>{"a", "b", "c"}};
    List list{inner, "list", {{"x", 7}, {"y", 8}, {"z", 9}}, 0};
    Grid grid{inner, "grid", 2, 2};
    Graph graph{inner, "graph"};
};

class Controls : public testing::Test {
protected:
    Controls() {
        window.text.Change.Connect([this] { ++raised; });
        window.check.Click.Connect([this] { ++raised; });
        window.options.Click.Connect([this] { ++raised; });
        window.list.Click.Connect([this] { ++raised; });
        window.graph.CursorChange.Connect([this](int, double, double) { ++raised; });
        window.Resize.Connect([this] { ++raised; });
    }

    Changes changes;
    Sample window{changes};
    int raised = 0;
};

TEST_F(Controls, ProgramsWriteRaisesOnlyForAnotherValueAndAPersonsActAlways) {
    Sample& w = window;
    const struct {
        const char* what;
        std::function<void()> act;
        int expected;
    } steps[] = {
        {"same text", [&] { w.text.SetText("1"); }, 0},
        {"other text", [&] { w.text.SetText("2"); }, 1},
        {"typed the same", [&] { w.text.Type("2"); }, 1},
        {"same mark", [&] { w.check.SetChecked(false); }, 0},
        {"other mark", [&] { w.check.SetChecked(true); }, 1},
        {"toggled", [&] { w.check.Toggle(); }, 1},
        {"same option", [&] { w.options.SetSelected(0); }, 0},
        {"other option", [&] { w.options.SetSelected(2); }, 1},
        {"no such option", [&] { w.options.SetSelected(3); }, 0},
        {"selected the same", [&] { w.options.Select(2); }, 1},
        {"same index", [&] { w.list.SetIndex(0); }, 0},
        {"other index", [&] { w.list.SetIndex(1); }, 1},
        {"index beyond", [&] { w.list.SetIndex(3); }, 1},
        {"none again", [&] { w.list.SetIndex(-1); }, 0},
        {"chosen", [&] { w.list.Choose(1); }, 1},
        {"chosen again", [&] { w.list.Choose(1); }, 1},
        {"filled",
         [&] {
             w.list.Fill({{"p", 1}, {"q", 2}});
         },
         0},
        {"added", [&] { w.list.Add("r", 3); }, 0},
        {"preselected", [&] { w.list.Preselect(1); }, 0},
        {"cleared", [&] { w.list.Clear(); }, 0},
        {"cursors set", [&] { w.graph.Cursors = {{.x = 1}}; }, 0},
        {"cursor dragged", [&] { w.graph.Drag(0, 2, 3); }, 1},
        {"placed",
         [&] {
             w.Place = Geometry{1, 2, 3, 4};
         },
         0},
        {"resized by a person", [&] { w.PersonResizes(5, 6); }, 1},
    };
    for (const auto& step : steps) {
        raised = 0;
        step.act();
        EXPECT_EQ(raised, step.expected) << step.what;
    }
    EXPECT_EQ(w.Place.Get(), (Geometry{1, 2, 5, 6}));
}

TEST_F(Controls, FilledListForgetsItsSelection) {
    EXPECT_EQ(window.list.Data(), 7);
    window.list.Fill({{"x", 7}, {"y", 8}});
    EXPECT_EQ(window.list.Index(), -1);
    EXPECT_EQ(window.list.Data(), -1);
    EXPECT_EQ(window.list.Text(), "");
    EXPECT_EQ(window.list.IndexOfData(8), 1);
    EXPECT_EQ(window.list.IndexOfText("z"), -1);
}

TEST_F(Controls, TextIsCommittedByEnterOrByLeavingAfterAnEdit) {
    int commits = 0;
    window.text.Commit.Connect([&] { ++commits; });
    const struct {
        const char* what;
        std::function<void()> act;
        int expected;
    } steps[] = {
        {"left unedited", [&] { window.text.Leave(); }, 0},
        {"written by the program", [&] { window.text.SetText("9"), window.text.Leave(); }, 0},
        {"typed", [&] { window.text.Type("5"); }, 0},
        {"another key", [&] { window.text.Press("F1"); }, 0},
        {"left after typing", [&] { window.text.Leave(); }, 1},
        {"left again", [&] { window.text.Leave(); }, 0},
        {"enter", [&] { window.text.Press("Enter"); }, 1},
        {"typed and entered, then left",
         [&] { window.text.Type("6"), window.text.Press("Enter"), window.text.Leave(); }, 1},
    };
    for (const auto& step : steps) {
        commits = 0;
        step.act();
        EXPECT_EQ(commits, step.expected) << step.what;
    }
}

TEST_F(Controls, GridGrowsToTheCellAndKeepsWhatItHas) {
    SetGridCell(window.grid, 1, 1, "kept", Align::Centre, true, false, Cyan);
    SetGridCell(window.grid, 4, 2, "new", Align::Left, false, false);
    EXPECT_EQ(window.grid.Rows(), 5);
    EXPECT_EQ(window.grid.Columns(), 3);
    EXPECT_EQ(window.grid.At(4, 2).text, "new");
    SetGridCell(window.grid, 1, 1, "kept too", Align::Left, false, false);
    EXPECT_EQ(window.grid.At(1, 1).text, "kept too");
    EXPECT_EQ(window.grid.At(1, 1).back, Cyan);
    SetGridCell(window.grid, -1, 0, "nowhere", Align::Left, false, false);
    EXPECT_EQ(window.grid.Rows(), 5);
    window.grid.SetRows(2);
    EXPECT_EQ(window.grid.TakeChangedCells(), (std::vector<std::pair<int, int>>{{1, 1}}));
    EXPECT_TRUE(window.grid.TakeChangedCells().empty());
}

TEST_F(Controls, ChangedControlIsListedOnceUntilTaken) {
    changes.Take();
    int firsts = 0;
    changes.onFirst = [&] { ++firsts; };
    window.text.SetText("1");
    EXPECT_TRUE(changes.Take().empty());
    window.text.SetText("2");
    window.check.Enabled = false;
    window.text.Visible = false;
    EXPECT_EQ(changes.Take(), (std::vector<Control*>{&window.text, &window.check}));
    window.text.SetText("3");
    EXPECT_EQ(changes.Take(), (std::vector<Control*>{&window.text}));
    EXPECT_EQ(firsts, 2);
}

TEST_F(Controls, FramesAroundDisableAndHideButWindowsDoNot) {
    EXPECT_FALSE(window.Visible);
    EXPECT_TRUE(window.text.EffectivelyVisible());
    EXPECT_TRUE(window.text.EffectivelyEnabled());
    window.outer.Enabled = false;
    window.outer.Visible = false;
    EXPECT_FALSE(window.text.EffectivelyEnabled());
    EXPECT_FALSE(window.text.EffectivelyVisible());
    EXPECT_TRUE(window.text.Enabled);
    window.Enabled = false;
    EXPECT_TRUE((window.outer.Enabled = true, window.text.EffectivelyEnabled()));
}

TEST_F(Controls, CloseHidesTheWindowUnlessARuleAnswers) {
    for (const bool byRule : {false, true}) {
        window.Visible = true;
        window.closesByRule = byRule;
        window.PersonCloses();
        EXPECT_EQ(window.Visible, byRule);
    }
}

}  // namespace
}  // namespace kelvra::controls
