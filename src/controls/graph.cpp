// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/graph.h"

#include <cmath>
#include <utility>

namespace kelvra::controls {

namespace {

template <class Element>
bool Has(const std::vector<Element>& elements, int index) {
    return index >= 0 && index < static_cast<int>(elements.size());
}

bool Finite(double a, double b) {
    return std::isfinite(a) && std::isfinite(b);
}

bool Rises(const Graph::Axis& axis) {
    return Finite(axis.min, axis.max) && axis.min < axis.max;
}

}  // namespace

bool Graph::SetCurve(Plot curve) {
    if (!Finite(curve.first, curve.step)) return false;
    if (curve == curve_) return true;
    curve_ = std::move(curve);
    Mark(&ChangedParts::curve);
    return true;
}

bool Graph::SetHeld(Held which, Plot curve) {
    if (!Finite(curve.first, curve.step)) return false;
    Plot& own = held_[static_cast<std::size_t>(which)];
    if (curve == own) return true;
    own = std::move(curve);
    Mark(&ChangedParts::held);
    return true;
}

void Graph::SetSeries(std::vector<Series> series) {
    series_ = std::move(series);
    Mark(&ChangedParts::series);
}

bool Graph::SetLimits(const Band& limits) {
    if (!Finite(limits.low.value_or(0), limits.high.value_or(0))) return false;
    if (std::exchange(limits_, limits) != limits) Mark(&ChangedParts::limits);
    return true;
}

bool Graph::SetBox(const std::optional<Axes>& box) {
    if (box && !(Rises(box->x) && Finite(box->y.min, box->y.max))) return false;
    if (std::exchange(box_, box) != box) Mark(&ChangedParts::box);
    return true;
}

bool Graph::SetAxis(Axis& own, const Axis& axis) {
    if (!Rises(axis)) return false;
    if (std::exchange(own, axis) != axis && !part_) Mark(&ChangedParts::axes);
    return true;
}

bool Graph::AddCursor(const Cursor& cursor) {
    if (!Finite(cursor.x, cursor.y)) return false;
    cursors_.push_back(cursor);
    markedCursors_.push_back(false);
    MarkCursor(CursorCount() - 1);
    return true;
}

bool Graph::SetCursor(int index, const Cursor& cursor) {
    if (!Has(cursors_, index) || !Finite(cursor.x, cursor.y)) return false;
    if (std::exchange(cursors_[static_cast<std::size_t>(index)], cursor) != cursor)
        MarkCursor(index);
    return true;
}

bool Graph::RemoveCursor(int index) {
    if (!Has(cursors_, index)) return false;
    cursors_.erase(cursors_.begin() + index);
    markedCursors_.pop_back();
    std::erase(changed_.cursors, CursorCount());
    for (int moved = index; moved < CursorCount(); ++moved) MarkCursor(moved);
    MarkChanged();
    return true;
}

bool Graph::AddLabel(Text label) {
    if (!Finite(label.x, label.y)) return false;
    labels_.push_back(std::move(label));
    Mark(&ChangedParts::labels);
    return true;
}

bool Graph::SetLabel(int index, Text label) {
    if (!Has(labels_, index) || !Finite(label.x, label.y)) return false;
    Text& own = labels_[static_cast<std::size_t>(index)];
    if (own == label) return true;
    own = std::move(label);
    Mark(&ChangedParts::labels);
    return true;
}

bool Graph::RemoveLabel(int index) {
    if (!Has(labels_, index)) return false;
    labels_.erase(labels_.begin() + index);
    Mark(&ChangedParts::labels);
    return true;
}

void Graph::SetTrack(TrackMode track) {
    if (track == track_) return;
    track_ = track;
    Mark(&ChangedParts::track);
    ShowPart(std::nullopt);
}

bool Graph::IsShown(int index) const {
    return Has(cursors_, index) && CursorAt(index).visible;
}

bool Graph::DragCursor(int index, double x, double y) {
    return track_ == TrackMode::CursorEvents && MoveCursor(index, x, y);
}

bool Graph::MoveCursor(int index, double x, double y) {
    if (!IsShown(index)) return false;
    Cursor cursor = CursorAt(index);
    cursor.x = x;
    cursor.y = y;
    if (!SetCursor(index, cursor)) return false;
    ChooseCursor(index);
    cursorChange.Raise(index, x, y);
    return true;
}

bool Graph::ChooseCursor(int index) {
    if (!IsShown(index)) return false;
    if (chosen.Set(index)) choice.Raise();
    return true;
}

bool Graph::Nudge(int steps) {
    if (!IsShown(chosen)) return false;
    nudge.Raise(steps);
    return true;
}

bool Graph::ReleaseCursor(int index) {
    cursorRelease.Raise(index);
    return Has(cursors_, index);
}

bool Graph::Zoom(const Axis& x, const Axis& y) {
    if (track_ != TrackMode::ZoomRectangle || !Rises(x) || !Rises(y)) return false;
    ShowPart(Axes{x, y});
    zoomIn.Raise(x, y);
    return true;
}

void Graph::ZoomOut() {
    ShowPart(std::nullopt);
    zoomOut.Raise();
}

void Graph::ShowPart(std::optional<Axes> part) {
    const Axes before = ShownAxes();
    part_ = part;
    if (ShownAxes() != before) Mark(&ChangedParts::axes);
}

void Graph::Mark(bool ChangedParts::*part) {
    changed_.*part = true;
    MarkChanged();
}

void Graph::MarkCursor(int index) {
    if (markedCursors_[static_cast<std::size_t>(index)]) return;
    markedCursors_[static_cast<std::size_t>(index)] = true;
    changed_.cursors.push_back(index);
    MarkChanged();
}

Graph::ChangedParts Graph::TakeChangedParts() {
    for (const int index : changed_.cursors)
        markedCursors_[static_cast<std::size_t>(index)] = false;
    return std::exchange(changed_, {});
}

}  // namespace kelvra::controls
