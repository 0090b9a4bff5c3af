// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/graph_zoom.h"

#include <algorithm>
#include <cmath>

namespace kelvra::desktop {

namespace {

using Axis = controls::Graph::Axis;

constexpr double Step = 0.8;         // of the axis, for a step in
constexpr double LeastShare = 1e-3;  // of the whole axis

Axis Around(const Axis& axis, const Axis& whole, double point, double factor) {
    const Axis part{point + (axis.min - point) * factor, point + (axis.max - point) * factor};
    return {std::max(part.min, whole.min), std::min(part.max, whole.max)};
}

Axis Shifted(const Axis& axis, const Axis& whole, double distance) {
    const double lowest = std::min(whole.min - axis.min, 0.0);
    const double highest = std::max(whole.max - axis.max, 0.0);
    const double allowed = std::clamp(distance, lowest, highest);
    return {axis.min + allowed, axis.max + allowed};
}

// The whole axis may have moved away from a part that is shown.
Axis Both(const Axis& a, const Axis& b) {
    return {std::min(a.min, b.min), std::max(a.max, b.max)};
}

bool Covers(const Axis& part, const Axis& whole) {
    return part.min <= whole.min && part.max >= whole.max;
}

bool IsTooSmall(const Axis& axis, const Axis& whole) {
    return axis.max - axis.min < LeastShare * (whole.max - whole.min);
}

}  // namespace

void ZoomAround(controls::Graph& graph, double x, double y, double steps) {
    const controls::Graph::Axes& whole = graph.WholeAxes();
    const controls::Graph::Axes& shown = graph.ShownAxes();
    const double factor = std::pow(Step, steps);
    const controls::Graph::Axes part{Around(shown.x, Both(shown.x, whole.x), x, factor),
                                     Around(shown.y, Both(shown.y, whole.y), y, factor)};
    if (Covers(part.x, whole.x) && Covers(part.y, whole.y) && graph.Zoomed())
        return graph.ZoomOut();
    if (part == shown || IsTooSmall(part.x, whole.x) || IsTooSmall(part.y, whole.y)) return;
    graph.Zoom(part.x, part.y);
}

void ShiftPart(controls::Graph& graph, const controls::Graph::Axes& from, double x, double y) {
    const controls::Graph::Axes& whole = graph.WholeAxes();
    graph.Zoom(Shifted(from.x, whole.x, x), Shifted(from.y, whole.y, y));
}

}  // namespace kelvra::desktop
