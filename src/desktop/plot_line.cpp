// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/plot_line.h"

#include <algorithm>
#include <cmath>

namespace kelvra::desktop {

namespace {

// One stretch of finite values, drawn when it is complete.
class Stretch {
public:
    Stretch(QCPPainter& painter, qsizetype most) : painter_(painter) { points_.reserve(most); }

    void Add(const QPointF& point) { points_ << point; }
    void End() {
        if (points_.size() == 1)
            painter_.drawEllipse(points_.front(), 1, 1);
        else if (points_.size() > 1)
            painter_.drawPolyline(points_);
        points_.resize(0);
    }

private:
    QCPPainter& painter_;
    QPolygonF points_;
};

struct Range {
    std::size_t from = 0, to = 0;
};

// The values in sight, and one more on each side.
Range InSight(const PlotSteps& x, std::size_t values, const controls::Graph::Axis& axis) {
    const auto count = static_cast<double>(values);
    if (x.step <= 0) return {0, values};
    const double first = std::floor((axis.min - x.first) / x.step);
    const double last = std::ceil((axis.max - x.first) / x.step) + 1;
    return {static_cast<std::size_t>(std::clamp(first, 0.0, count)),
            static_cast<std::size_t>(std::clamp(last, 0.0, count))};
}

}  // namespace

void DrawLine(QCPPainter& painter, const PlotScale& scale, const PlotSteps& x,
              const std::vector<double>& values, bool stairs) {
    const Range range = InSight(x, values.size(), scale.Axes().x);
    Stretch stretch(painter, 2 * static_cast<qsizetype>(range.to - range.from));
    const auto pixelX = [&](std::size_t i) {
        return scale.PixelX(x.first + static_cast<double>(i) * x.step);
    };
    for (std::size_t i = range.from; i < range.to; ++i) {
        if (!std::isfinite(values[i])) {
            stretch.End();
            continue;
        }
        const double y = scale.PixelY(values[i]);
        if (stairs && i > 0) stretch.Add({pixelX(i - 1), y});
        stretch.Add({pixelX(i), y});
    }
    stretch.End();
}

void DrawManyLines(QCPPainter& painter, const PlotScale& scale, const PlotSteps& x,
                   const std::vector<double>& values, QPen pen) {
    const double pixel = 1 / painter.device()->devicePixelRatioF();
    const int lines = std::max(qRound(pen.widthF() / pixel), 1);
    pen.setWidthF(1);
    pen.setCosmetic(true);
    painter.setPen(pen);
    painter.translate(0, -pixel * (lines - 1) / 2);
    for (int line = 0; line < lines; ++line) {
        DrawLine(painter, scale, x, values, false);
        painter.translate(0, pixel);
    }
    painter.translate(0, -pixel * (lines + 1) / 2);
}

// As upright strips of whole pixels: a polygon with so many corners is slow to fill.
void DrawArea(QCPPainter& painter, const PlotScale& scale, const PlotSteps& x,
              const std::vector<double>& low, const std::vector<double>& high,
              const QColor& colour) {
    const Range range = InSight(x, low.size(), scale.Axes().x);
    const auto edge = [&](std::size_t i) {  // between two values
        constexpr double half = 0.5;
        return std::round(scale.PixelX(x.first + (static_cast<double>(i) - half) * x.step));
    };
    double top = scale.Place().bottom(), bottom = scale.Place().top();
    const double empty[] = {top, bottom};
    for (std::size_t i = range.from; i < range.to; ++i) {
        if (std::isfinite(low[i]) && std::isfinite(high[i])) {
            top = std::min(top, scale.PixelY(high[i]));
            bottom = std::max(bottom, scale.PixelY(low[i]));
        }
        const double left = edge(i), right = edge(i + 1);
        if (left == right) continue;
        if (top < bottom) painter.fillRect(QRectF(left, top, right - left, bottom - top), colour);
        top = empty[0];
        bottom = empty[1];
    }
}

}  // namespace kelvra::desktop
