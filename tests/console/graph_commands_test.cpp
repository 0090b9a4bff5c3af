// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "console/command_table.h"
#include "support/whole_kelvra.h"

namespace kelvra::console {
namespace {

TEST(GraphCommands, DragAndZoomAsAPersonCan) {
    test::WholeKelvra kelvra;
    app::Kelvra& program = kelvra.Start();
    Output output(stdout);
    ScriptDialogs dialogs(output);
    Waiting waiting(program.state, kelvra.fake.clock);
    CommandContext context{program, dialogs, output, waiting};
    controls::Graph& graph = program.forms.scopeDisp.Display;
    graph.SetX({0, 10});
    graph.SetY({-65, 5});
    graph.AddCursor({.horizontal = true, .y = -30});
    graph.AddCursor({.visible = false});
    int released = 0;
    graph.cursorRelease.Connect([&](int) { ++released; });

    constexpr auto cursors = controls::TrackMode::CursorEvents;
    constexpr auto rectangle = controls::TrackMode::ZoomRectangle;
    constexpr const char* shape = "zoom GRAPH X1 X2 Y1 Y2, four numbers or none";
    constexpr const char* order = "X1 must be below X2, and Y1 below Y2";
    const struct {
        controls::TrackMode track;
        std::string command;
        const char* error;  // none: it succeeds
    } steps[] = {
        {cursors, "drag ScopeDisp.Display", "the graph has no such cursor"},
        {cursors, "drag ScopeDisp.Display 0 x", "a position is a number"},
        {cursors, "drag ScopeDisp.Display 1 1", "the cursor is hidden"},
        {cursors, "drag ScopeDisp.Display 0 5 -12.5", nullptr},
        {cursors, "zoom ScopeDisp.Display 1 2 -3 -2", "the graph's zoom is off"},
        {rectangle, "drag ScopeDisp.Display 0 6",
         "no cursor can be dragged while the graph's zoom is on"},
        {rectangle, "zoom ScopeDisp.Display 1 2 3 inf", shape},
        {rectangle, "zoom ScopeDisp.Display 2 1 -3 -2", order},
        {rectangle, "zoom ScopeDisp.Display 1 2 -2 -2", order},
        {rectangle, "zoom ScopeDisp.Display 1 2 -3 -2.5", nullptr},
    };
    for (const auto& [track, command, error] : steps) {
        graph.SetTrack(track);
        EXPECT_EQ(RunCommand(context, command).value_or(""), error == nullptr ? "" : error)
            << command;
    }
    EXPECT_EQ(released, 1);
    EXPECT_EQ(graph.CursorAt(0).y, -12.5);
    EXPECT_EQ(graph.ShownAxes(), (controls::Graph::Axes{{1, 2}, {-3, -2.5}}));
    EXPECT_FALSE(RunCommand(context, "zoom ScopeDisp.Display"));
    EXPECT_FALSE(graph.Zoomed());
}

}  // namespace
}  // namespace kelvra::console
