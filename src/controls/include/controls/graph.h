// SPDX-License-Identifier: GPL-3.0-or-later
// A graph of a curve over an even x axis, with curves that it is compared with, or as one of
// several series; with movable cursors, and texts at positions. It records which of its parts have
// changed, so that a painter draws only those.
//
// The program sets the axes of the whole graph; the user may zoom into a part of it. Axes that the
// program sets during a zoom are shown when the zoom ends.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "controls/control.h"
#include "controls/event.h"
#include "controls/kinds.h"

namespace kelvra::controls {

// What the mouse does in the graph; the numbers are the graph's own codes.
enum class TrackMode { CursorEvents = 2, ZoomRectangle = 7 };

// What a cursor marks; it is drawn accordingly.
enum class CursorLook { Level, Origin, ZoneStart, ZoneStop, Division };

// A curve that the first one is compared with.
enum class Held { Maximum, Minimum, Reference };
constexpr int HeldCount = 3;

// What a graph's declaration says of it.
struct GraphParts {
    std::string xTitle{};  // with the unit
    std::string yTitle{};
    bool stairs = false;  // a value is drawn as a line from the x of the one before it to its own
    // The x is a local time, in seconds since 1970-01-01 00:00 on the same wall clock.
    bool timeAxis = false;
    std::string name{};
};

class Graph : public Focusable {
public:
    struct Plot {
        double first = 0;  // x of the first value
        double step = 0;
        std::vector<double> values;  // a value that is not finite leaves a gap
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
        CursorLook look = CursorLook::Division;
        bool operator==(const Cursor&) const = default;
    };
    struct Text {
        double x = 0, y = 0;
        std::string text;
        bool operator==(const Text&) const = default;
    };

    // One of several curves over the x of the graph's own curve, which is one of them.
    struct Series {
        std::string name;
        int look = 0;        // which colour and line it has, from 0
        bool front = false;  // it is drawn in front of the others
        std::vector<double> values;
        std::vector<double> low, high;  // the range of each value; empty if there are no ranges
        bool operator==(const Series&) const = default;
    };
    // What is below and above is drawn as being outside.
    struct Band {
        std::optional<double> low, high;
        bool operator==(const Band&) const = default;
    };

    Graph(Control& parent, std::string name, const GraphParts& parts = {})
        : Focusable(Kind::Graph, parent, std::move(name), {.name = parts.name}),
          yTitle(*this, parts.yTitle),
          parts_(parts) {}

    const GraphParts& Parts() const { return parts_; }
    const Plot& Curve() const { return curve_; }
    // Has no values if it is not shown.
    const Plot& HeldCurve(Held which) const { return held_[static_cast<std::size_t>(which)]; }
    // Without series, the curve is alone.
    const std::vector<Series>& AllSeries() const { return series_; }
    const Band& Limits() const { return limits_; }
    const std::optional<Axes>& Box() const { return box_; }
    const Axes& WholeAxes() const { return whole_; }
    const Axes& ShownAxes() const { return part_ ? *part_ : whole_; }
    bool Zoomed() const { return part_.has_value(); }
    int CursorCount() const { return static_cast<int>(cursors_.size()); }
    const Cursor& CursorAt(int index) const { return cursors_[static_cast<std::size_t>(index)]; }
    const std::vector<Text>& Labels() const { return labels_; }
    TrackMode Track() const { return track_; }

    // The program's writes raise no event. They give false and write nothing for an index that does
    // not exist, a coordinate that is not finite, or an axis that does not rise from min to max.
    bool SetCurve(Plot curve);
    bool SetHeld(Held which, Plot curve);
    bool SetBox(const std::optional<Axes>& box);  // a rectangle around a part of the curve
    void SetSeries(std::vector<Series> series);
    bool SetLimits(const Band& limits);
    bool SetX(const Axis& axis) { return SetAxis(whole_.x, axis); }
    bool SetY(const Axis& axis) { return SetAxis(whole_.y, axis); }
    bool AddCursor(const Cursor& cursor);  // becomes the last one
    bool SetCursor(int index, const Cursor& cursor);
    bool RemoveCursor(int index);  // the later ones move down by one
    bool AddLabel(Text label);
    bool SetLabel(int index, Text label);
    bool RemoveLabel(int index);
    void SetTrack(TrackMode track);  // a different mode ends a zoom

    // The user drags a cursor and lets it go. False as above, and when the mouse could not do it:
    // for a hidden cursor, or any cursor while the mouse draws zoom rectangles.
    bool DragCursor(int index, double x, double y);
    bool ReleaseCursor(int index);  // raises the event also for a cursor that has gone
    // The same as a drag by other means than the mouse, also while that draws zoom rectangles.
    bool MoveCursor(int index, double x, double y);
    Event<int, double, double> cursorChange;  // index, x, y
    Event<int> cursorRelease;

    // The user draws a rectangle to zoom into, and asks for the whole graph again. False as above,
    // and unless the mouse draws zoom rectangles.
    bool Zoom(const Axis& x, const Axis& y);
    void ZoomOut();
    Event<Axis, Axis> zoomIn;
    Event<> zoomOut;

    // The mouse points at a position of the graph, and leaves it.
    void Point(double x, double y) { pointed.Raise(x, y); }
    void Leave() { left.Raise(); }
    Event<double, double> pointed;
    Event<> left;

    // The cursor that keys move; -1: none. The user chooses it, also by dragging it.
    Property<int> chosen{*this, -1};
    bool ChooseCursor(int index);  // false if there is no such cursor, or it is hidden
    Event<> choice;
    // The user moves the chosen cursor by that many steps, to the right or up if positive. What a
    // step is, the rules know. False as for a move.
    bool Nudge(int steps);
    Event<int> nudge;

    Property<std::string> yTitle;  // at first that of the declaration
    // The numbers at the y axis are written with the prefixes of the SI: "150 u" for 0.00015.
    Property<bool> prefixes{*this, false};

    // Says what a graph without a curve waits for.
    Property<std::string> emptyText{*this, {}};

    struct ChangedParts {
        bool curve = false;
        bool held = false;
        bool series = false;
        bool limits = false;
        bool box = false;
        bool axes = false;  // the shown ones
        bool labels = false;
        bool track = false;
        std::vector<int> cursors;  // indices; removals show only in CursorCount
    };
    // What has changed since the last call.
    ChangedParts TakeChangedParts();

private:
    bool SetAxis(Axis& own, const Axis& axis);
    void ShowPart(std::optional<Axes> part);
    bool IsShown(int index) const;
    void Mark(bool ChangedParts::*part);
    void MarkCursor(int index);

    const GraphParts parts_;
    Plot curve_;
    std::array<Plot, HeldCount> held_;
    std::vector<Series> series_;
    Band limits_;
    std::optional<Axes> box_;
    Axes whole_;
    std::optional<Axes> part_;
    std::vector<Cursor> cursors_;
    std::vector<bool> markedCursors_;  // by index: already in changed_
    std::vector<Text> labels_;
    TrackMode track_ = TrackMode::CursorEvents;
    ChangedParts changed_;
};

}  // namespace kelvra::controls
