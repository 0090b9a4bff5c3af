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
    bool Empty() const { return points_.isEmpty(); }

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

void DrawArea(QCPPainter& painter, const PlotScale& scale, const PlotSteps& x,
              const std::vector<double>& low, const std::vector<double>& high) {
    const Range range = InSight(x, low.size(), scale.Axes().x);
    const auto pixelX = [&](std::size_t i) {
        return scale.PixelX(x.first + static_cast<double>(i) * x.step);
    };
    const auto finite = [&](std::size_t i) {
        return std::isfinite(low[i]) && std::isfinite(high[i]);
    };
    for (std::size_t i = range.from; i < range.to; ++i) {
        QPolygonF area;
        const std::size_t begin = i;
        for (; i < range.to && finite(i); ++i) area << QPointF(pixelX(i), scale.PixelY(high[i]));
        for (std::size_t back = i; back-- > begin;)
            area << QPointF(pixelX(back), scale.PixelY(low[back]));
        if (area.size() > 2) painter.drawPolygon(area);
    }
}

}  // namespace kelvra::desktop
