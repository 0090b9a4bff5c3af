// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/graph.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "controls/kinds.h"

namespace kelvra::controls {
namespace {

struct Sample : Window {
    explicit Sample(Changes& changes) : Window(changes, "Sample", "", {}) {}

    Graph graph{*this, "graph"};
};

// A graph with two cursors, a label, axes and a curve, that nobody has to paint yet.
class GraphTest : public testing::Test {
protected:
    GraphTest() {
        graph_.SetX({0, 10});
        graph_.SetY({-65, 5});
        graph_.AddCursor({.horizontal = true, .y = -30});
        graph_.AddCursor({.x = 1});
        graph_.AddLabel({1, 2, "-3.00"});
        graph_.SetCurve({0, 1, {1, 2, 3}});
        TakeChanges();
        graph_.cursorChange.Connect([this](int cursor, double x, double y) {
            raised_ += "change " + std::to_string(cursor);
            EXPECT_EQ(graph_.CursorAt(cursor).x, x);
            EXPECT_EQ(graph_.CursorAt(cursor).y, y);
        });
        graph_.zoomIn.Connect([this](const Graph::Axis& x, const Graph::Axis& y) {
            raised_ += "in";
            EXPECT_EQ(graph_.ShownAxes(), (Graph::Axes{x, y}));
        });
        graph_.zoomOut.Connect([this] { raised_ += "out"; });
    }

    // The changed parts in words: "curve 0 1". A graph with changed parts is a changed control.
    std::string TakeChanges() {
        const Graph::ChangedParts parts = graph_.TakeChangedParts();
        std::string words;
        if (parts.curve) words += " curve";
        if (parts.axes) words += " axes";
        if (parts.labels) words += " labels";
        if (parts.track) words += " track";
        for (const int cursor : parts.cursors) words += ' ' + std::to_string(cursor);
        if (changes_.Take().empty()) return words.empty() ? "" : "not marked:" + words;
        return words.empty() ? "control" : words.substr(1);
    }

    Changes changes_;
    Sample window_{changes_};
    Graph& graph_ = window_.graph;
    std::string raised_;
};

TEST_F(GraphTest, AWriteMarksItsPartAndAnActRaisesItsEvent) {
    Graph& g = graph_;
    constexpr auto rectangle = TrackMode::ZoomRectangle;
    // clang-format off
    const struct {
        const char* what;
        std::function<bool()> act;
        bool taken;
        const char* changed;
        const char* raised;
    } steps[] = {
        {"another", [&] { return g.SetCurve({0, 1, {1, NAN, 3}}); }, true, "curve", ""},
        {"from nowhere", [&] { return g.SetCurve({NAN, 1, {}}); }, false, "", ""},
        {"other axes", [&] { return g.SetX({0, 20}) && g.SetY({-80, 5}); }, true, "axes", ""},
        {"endless axis", [&] { return g.SetY({-INFINITY, 5}); }, false, "", ""},
        {"no such cursor", [&] { return g.SetCursor(2, {}) || g.SetCursor(-1, {}); }, false, "", ""},
        {"dragged", [&] { return g.DragCursor(0, 2, 3); }, true, "0", "change 0"},
        {"dragged nowhere", [&] { return g.DragCursor(0, NAN, 3); }, false, "", ""},
        {"third cursor", [&] { return g.AddCursor({.x = 3}); }, true, "2", ""},
        {"last ones moved and gone", [&] {
            return g.SetCursor(2, {.x = 4}) && g.RemoveCursor(2) && g.SetCursor(1, {.x = 9});
        }, true, "1", ""},
        {"first gone", [&] { return g.SetCursor(1, {.x = 8}) && g.RemoveCursor(0); },
         true, "0", ""},
        {"labels nowhere", [&] { return g.AddLabel({NAN, 2, ""}) || g.SetLabel(0, {1, NAN, ""}); },
         false, "", ""},
        {"label gone", [&] { return g.RemoveLabel(0); }, true, "labels", ""},
        {"no such label", [&] { return g.SetLabel(1, {}) || g.RemoveLabel(1); }, false, "", ""},
        {"zoom on", [&] { g.SetTrack(rectangle); return true; }, true, "track", ""},
        {"zoomed", [&] { return g.Zoom({1, 2}, {3, 4}); }, true, "axes", "in"},
        {"of no height", [&] { return g.Zoom({1, 2}, {4, NAN}); }, false, "", ""},
        {"zoomed out", [&] { g.ZoomOut(); return true; }, true, "axes", "out"},
    };
    // clang-format on
    for (const auto& [what, act, taken, changed, raised] : steps) {
        raised_.clear();
        EXPECT_EQ(act(), taken) << what;
        EXPECT_EQ(TakeChanges(), changed) << what;
        EXPECT_EQ(raised_, raised) << what;
    }
}

TEST_F(GraphTest, APartInSightStaysWhileTheProgramWritesAxesAndUntilTheZoomIsSwitchedOff) {
    const Graph::Axes part{{1, 2}, {3, 4}};
    const Graph::Axes later{{0, 20}, {-80, 5}};
    graph_.SetTrack(TrackMode::ZoomRectangle);
    ASSERT_TRUE(graph_.Zoom(part.x, part.y));
    TakeChanges();
    EXPECT_TRUE(graph_.SetX(later.x) && graph_.SetY(later.y));
    EXPECT_EQ(TakeChanges(), "");
    EXPECT_EQ(graph_.ShownAxes(), part);
    EXPECT_EQ(graph_.WholeAxes(), later);
    graph_.SetTrack(TrackMode::CursorEvents);
    EXPECT_EQ(TakeChanges(), "axes track");
    EXPECT_FALSE(graph_.Zoomed());
    EXPECT_EQ(graph_.ShownAxes(), later);
}

}  // namespace
}  // namespace kelvra::controls
