// SPDX-License-Identifier: GPL-3.0-or-later
// From a graph's coordinates to its widget's pixels and back. Axes that don't rise yet, in a graph
// that nobody has given any, count as 0 to 1.
#pragma once

#include <QPointF>
#include <QRectF>
#include <algorithm>
#include <cmath>

#include "controls/graph.h"

namespace kelvra::desktop {

class PlotScale {
public:
    PlotScale(const QRectF& place, const controls::Graph::Axes& axes)
        : place_(place), axes_{Usable(axes.x), Usable(axes.y)} {}

    const QRectF& Place() const { return place_; }
    const controls::Graph::Axes& Axes() const { return axes_; }

    // Far outside the graph, the place is only somewhere on that side: painters can't take more.
    double PixelX(double x) const { return Bounded(place_.left() + (x - axes_.x.min) * PerX()); }
    double PixelY(double y) const { return Bounded(place_.bottom() - (y - axes_.y.min) * PerY()); }
    double X(double pixel) const { return axes_.x.min + (pixel - place_.left()) / PerX(); }
    double Y(double pixel) const { return axes_.y.min + (place_.bottom() - pixel) / PerY(); }

    static controls::Graph::Axis Usable(const controls::Graph::Axis& axis) {
        return axis.min < axis.max ? axis : controls::Graph::Axis{0, 1};
    }

private:
    static double Bounded(double pixel) { return std::clamp(pixel, -20'000.0, 20'000.0); }
    double PerX() const { return std::max(place_.width(), 1.0) / (axes_.x.max - axes_.x.min); }
    double PerY() const { return std::max(place_.height(), 1.0) / (axes_.y.max - axes_.y.min); }

    QRectF place_;
    controls::Graph::Axes axes_;
};

}  // namespace kelvra::desktop
