// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/graph_mouse.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/graph_widget.h"
#include "desktop/graph_zoom.h"

namespace kelvra::desktop {

namespace {

using controls::CursorLook;
using controls::Graph;
using controls::TrackMode;

constexpr int LeastReach = 6;  // logical pixels from the mouse to a cursor
constexpr double ReachOfFont = 0.4;
constexpr int LeastRectangle = 5;  // logical pixels on each side

// Of cursors at the same place, the mouse takes the one that can't be reached elsewhere.
int Rank(const Graph::Cursor& cursor) {
    return cursor.look == CursorLook::Division ? 1 : 0;
}

double Distance(const Graph::Cursor& cursor, const PlotScale& scale, const QPointF& place) {
    return cursor.horizontal ? std::abs(scale.PixelY(cursor.y) - place.y())
                             : std::abs(scale.PixelX(cursor.x) - place.x());
}

QPointF Inside(const QPointF& place, const QRectF& room) {
    return {std::clamp(place.x(), room.left(), room.right()),
            std::clamp(place.y(), room.top(), room.bottom())};
}

}  // namespace

GraphMouse::GraphMouse(GraphWidget& widget) : widget_(widget) {
    soon_.setSingleShot(true);
    soon_.setInterval(0);
    QObject::connect(&soon_, &QTimer::timeout, [this] { Apply(); });
}

int GraphMouse::CursorNear(const QPointF& place) const {
    const Graph& graph = widget_.Record();
    const PlotScale scale = widget_.Scale();
    const double reach = std::max<double>(LeastReach, ReachOfFont * widget_.fontMetrics().height());
    if (!scale.Place().adjusted(-reach, -reach, reach, reach).contains(place)) return -1;
    int found = -1;
    std::pair<double, int> best{reach + 1, 0};
    for (int i = 0; i < graph.CursorCount(); ++i) {
        const Graph::Cursor& cursor = graph.CursorAt(i);
        const std::pair<double, int> own{std::round(Distance(cursor, scale, place)), Rank(cursor)};
        if (!cursor.visible || own.first > reach || own >= best) continue;
        best = own;
        found = i;
    }
    return found;
}

void GraphMouse::Press(const QMouseEvent& event) {
    if (event.button() == Qt::LeftButton && act_ == Act::None) Begin(event);
}

void GraphMouse::Begin(const QMouseEvent& event) {
    Graph& graph = widget_.Record();
    place_ = pressed_ = event.position();
    moved_ = false;
    if (graph.Track() == TrackMode::CursorEvents) {
        cursor_ = CursorNear(place_);
        if (cursor_ < 0) return;
        act_ = Act::Drag;
        graph.ChooseCursor(cursor_);
        const Graph::Cursor& cursor = graph.CursorAt(cursor_);
        const PlotScale scale = widget_.Scale();
        grip_ = QPointF(scale.PixelX(cursor.x), scale.PixelY(cursor.y)) - place_;
    } else if (widget_.Scale().Place().contains(place_)) {
        const bool draws = (event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier)) != 0;
        act_ = graph.Zoomed() && !draws ? Act::Shift : Act::Rectangle;
        from_ = graph.ShownAxes();
    }
    ShowPointer();
}

void GraphMouse::Move(const QMouseEvent& event) {
    if ((event.buttons() & Qt::LeftButton) == 0) End();
    place_ = event.position();
    moved_ = true;
    if (act_ == Act::None) ShowPointer();
    if (act_ == Act::Rectangle) widget_.update();
    if (!soon_.isActive()) soon_.start();
}

void GraphMouse::Release(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return;
    place_ = event.position();
    Apply();
    const Act act = std::exchange(act_, Act::None);
    if (act == Act::Drag && moved_) widget_.Record().ReleaseCursor(cursor_);
    if (act == Act::Rectangle) ZoomIntoRectangle();
    ShowPointer();
}

// The button is up without a release that was seen, or the graph is hidden.
void GraphMouse::End() {
    const Act act = std::exchange(act_, Act::None);
    if (act == Act::Drag && moved_) widget_.Record().ReleaseCursor(cursor_);
    if (act == Act::Rectangle) widget_.update();
}

void GraphMouse::DoubleClick(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return;
    if (widget_.Record().Track() == TrackMode::ZoomRectangle)
        widget_.Record().ZoomOut();
    else
        Press(event);
}

void GraphMouse::Wheel(QWheelEvent& event) {
    Graph& graph = widget_.Record();
    if (graph.Track() != TrackMode::ZoomRectangle) return event.ignore();
    const double steps = event.angleDelta().y() / double{QWheelEvent::DefaultDeltasPerStep};
    const PlotScale scale = widget_.Scale();
    const QPointF at = Inside(event.position(), scale.Place());
    ZoomAround(graph, scale.X(at.x()), scale.Y(at.y()), steps);
    event.accept();
}

void GraphMouse::Leave() {
    soon_.stop();
    if (std::exchange(pointing_, false)) widget_.Record().Leave();
}

// What the mouse has done since the last round.
void GraphMouse::Apply() {
    soon_.stop();
    if (act_ == Act::Drag && moved_) DragTo(place_ + grip_);
    if (act_ == Act::Shift && moved_) ShiftTo(place_);
    Point();
}

void GraphMouse::Point() {
    const PlotScale scale = widget_.Scale();
    if (!scale.Place().contains(place_)) return Leave();
    pointing_ = true;
    widget_.Record().Point(scale.X(place_.x()), scale.Y(place_.y()));
}

// The cursor may have gone, or the graph may zoom by now: the record refuses then.
void GraphMouse::DragTo(const QPointF& place) {
    Graph& graph = widget_.Record();
    if (cursor_ >= graph.CursorCount()) return;
    const PlotScale scale = widget_.Scale();
    const QPointF inside = Inside(place, scale.Place());
    const Graph::Cursor cursor = graph.CursorAt(cursor_);
    if (cursor.horizontal)
        graph.DragCursor(cursor_, cursor.x, scale.Y(inside.y()));
    else
        graph.DragCursor(cursor_, scale.X(inside.x()), cursor.y);
}

void GraphMouse::ShiftTo(const QPointF& place) {
    const PlotScale from(widget_.Scale().Place(), from_);
    ShiftPart(widget_.Record(), from_, from.X(pressed_.x()) - from.X(place.x()),
              from.Y(pressed_.y()) - from.Y(place.y()));
}

std::optional<QRectF> GraphMouse::Rectangle() const {
    if (act_ != Act::Rectangle) return std::nullopt;
    return QRectF(pressed_, Inside(place_, widget_.Scale().Place())).normalized();
}

void GraphMouse::ZoomIntoRectangle() {
    const PlotScale scale = widget_.Scale();
    const QRectF drawn = QRectF(pressed_, Inside(place_, scale.Place())).normalized();
    widget_.update();
    if (drawn.width() < LeastRectangle || drawn.height() < LeastRectangle) return;
    widget_.Record().Zoom({scale.X(drawn.left()), scale.X(drawn.right())},
                          {scale.Y(drawn.bottom()), scale.Y(drawn.top())});
}

// Says what the button would do here.
void GraphMouse::ShowPointer() {
    Graph& graph = widget_.Record();
    Qt::CursorShape shape = Qt::ArrowCursor;
    if (graph.Track() == TrackMode::ZoomRectangle) {
        shape = act_ == Act::Shift ? Qt::ClosedHandCursor
                : graph.Zoomed()   ? Qt::OpenHandCursor
                                   : Qt::CrossCursor;
    } else if (const int near = act_ == Act::Drag ? cursor_ : CursorNear(place_);
               near >= 0 && near < graph.CursorCount()) {
        shape = graph.CursorAt(near).horizontal ? Qt::SizeVerCursor : Qt::SizeHorCursor;
    }
    if (widget_.cursor().shape() != shape) widget_.setCursor(shape);
}

}  // namespace kelvra::desktop
