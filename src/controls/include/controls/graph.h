// SPDX-License-Identifier: GPL-3.0-or-later
// A graph of one curve over an even x axis, with movable cursors and texts at places.
#pragma once

#include <string>
#include <vector>

#include "controls/control.h"
#include "controls/event.h"

namespace kelvra::controls {

// What the mouse does in the graph; the numbers are the graph's own codes.
enum class TrackMode { CursorEvents = 2, ZoomRectangle = 7 };

class Graph : public Control {
public:
    struct Plot {
        double first = 0;  // x of the first value
        double step = 0;
        std::vector<double> values;
        bool operator==(const Plot&) const = default;
    };
    struct Axis {
        double min = 0, max = 0;
        bool operator==(const Axis&) const = default;
    };
    struct Cursor {
        bool horizontal = false;
        double x = 0, y = 0;
        bool visible = true;
        bool operator==(const Cursor&) const = default;
    };
    struct Text {
        double x = 0, y = 0;
        std::string text;
        bool operator==(const Text&) const = default;
    };

    Graph(Control& parent, std::string name) : Control(Kind::Graph, parent, std::move(name)) {}

    Property<Plot> curve{*this, {}};
    Property<Axis> x{*this, {}};
    Property<Axis> y{*this, {}};
    Property<std::vector<Cursor>> cursors{*this, {}};  // moving them raises nothing
    Property<std::vector<Text>> labels{*this, {}};
    Property<TrackMode> track{*this, TrackMode::CursorEvents};

    // A person drags a cursor (its index, x, y), and lets it go.
    Event<int, double, double> cursorChange;
    Event<int> cursorRelease;
    void Drag(int cursor, double toX, double toY);
    void Release(int cursor) { cursorRelease.Raise(cursor); }
};

}  // namespace kelvra::controls
