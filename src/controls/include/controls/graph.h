// SPDX-License-Identifier: GPL-3.0-or-later
// A graph of one curve over an even x axis, with movable cursors and texts at places. Its parts
// remember that they have changed, so that a painter draws those alone.
//
// The program writes the axes of the whole graph; a person may look at a part of it. New axes that
// the program writes then wait: the part stays in sight until the zoom ends, and the axes written
// last are shown.
#pragma once

#include <optional>
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
        std::vector<double> values;  // one that is not finite leaves a gap
        bool operator==(const Plot&) const = default;
    };
    struct Axis {
        double min = 0, max = 0;
        bool operator==(const Axis&) const = default;
    };
    struct Axes {
        Axis x, y;
        bool operator==(const Axes&) const = default;
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

    const Plot& Curve() const { return curve_; }
    const Axes& WholeAxes() const { return whole_; }
    const Axes& ShownAxes() const { return part_ ? *part_ : whole_; }
    bool Zoomed() const { return part_.has_value(); }
    int CursorCount() const { return static_cast<int>(cursors_.size()); }
    const Cursor& CursorAt(int index) const { return cursors_[static_cast<std::size_t>(index)]; }
    const std::vector<Text>& Labels() const { return labels_; }
    TrackMode Track() const { return track_; }

    // The program's own writes raise nothing. False, and nothing is written: there is no such
    // index, a coordinate is not finite, or an axis does not rise from min to max.
    bool SetCurve(Plot curve);
    bool SetX(const Axis& axis) { return SetAxis(whole_.x, axis); }
    bool SetY(const Axis& axis) { return SetAxis(whole_.y, axis); }
    bool AddCursor(const Cursor& cursor);  // its index is the highest
    bool SetCursor(int index, const Cursor& cursor);
    bool RemoveCursor(int index);  // those after it move down by one
    bool AddLabel(Text label);
    bool SetLabel(int index, Text label);
    bool RemoveLabel(int index);
    void SetTrack(TrackMode track);  // another one ends a zoom

    // A person drags a cursor and lets it go. False as above, and for what the mouse can't do: drag
    // a cursor that is hidden, or any while it draws zoom rectangles.
    bool DragCursor(int index, double x, double y);
    bool ReleaseCursor(int index);
    Event<int, double, double> cursorChange;  // index, x, y
    Event<int> cursorRelease;

    // A person draws a rectangle to look at, and asks for the whole graph again. False as above,
    // and while the mouse draws no zoom rectangles.
    bool Zoom(const Axis& x, const Axis& y);
    void ZoomOut();
    Event<Axis, Axis> zoomIn;
    Event<> zoomOut;

    struct ChangedParts {
        bool curve = false;
        bool axes = false;  // those shown
        bool labels = false;
        bool track = false;
        std::vector<int> cursors;  // the indices; removed ones are known by the count alone
    };
    // What has changed since the last call.
    ChangedParts TakeChangedParts();

private:
    bool SetAxis(Axis& own, const Axis& axis);
    void ShowPart(std::optional<Axes> part);
    void Mark(bool ChangedParts::*part);
    void MarkCursor(int index);

    Plot curve_;
    Axes whole_;
    std::optional<Axes> part_;
    std::vector<Cursor> cursors_;
    std::vector<bool> markedCursors_;  // by index, whether it is in changed_
    std::vector<Text> labels_;
    TrackMode track_ = TrackMode::CursorEvents;
    ChangedParts changed_;
};

}  // namespace kelvra::controls
