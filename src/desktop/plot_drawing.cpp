// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/plot_drawing.h"

#include <cmath>

#include "desktop/plot_captions.h"
#include "desktop/plot_look.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

using controls::Graph;
using controls::Held;

constexpr Held AllHeld[] = {Held::Maximum, Held::Minimum, Held::Reference};
constexpr int ShineThrough =
    200;  // of 255: how little of the lines is seen through a text's ground

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
Range InSight(const Graph::Plot& plot, const Graph::Axis& x) {
    const auto count = static_cast<double>(plot.values.size());
    if (plot.step <= 0) return {0, plot.values.size()};
    const double first = std::floor((x.min - plot.first) / plot.step);
    const double last = std::ceil((x.max - plot.first) / plot.step) + 1;
    return {static_cast<std::size_t>(std::clamp(first, 0.0, count)),
            static_cast<std::size_t>(std::clamp(last, 0.0, count))};
}

void DrawPlot(QCPPainter& painter, const PlotScale& scale, const Graph::Plot& plot, bool stairs) {
    const Range range = InSight(plot, scale.Axes().x);
    Stretch stretch(painter, 2 * static_cast<qsizetype>(range.to - range.from));
    const auto pixelX = [&](std::size_t i) {
        return scale.PixelX(plot.first + static_cast<double>(i) * plot.step);
    };
    for (std::size_t i = range.from; i < range.to; ++i) {
        if (!std::isfinite(plot.values[i])) {
            stretch.End();
            continue;
        }
        const double y = scale.PixelY(plot.values[i]);
        if (stairs && i > 0) stretch.Add({pixelX(i - 1), y});
        stretch.Add({pixelX(i), y});
    }
    stretch.End();
}

// Sharp lines of one pixel are drawn in its middle.
double Sharp(double pixel) {
    return std::round(pixel);
}

void DrawCursor(QCPPainter& painter, const PlotScale& scale, const Graph::Cursor& cursor,
                bool chosen) {
    if (!cursor.visible) return;
    painter.setPen(PlotPen(PartOf(cursor.look), chosen));
    const QRectF& place = scale.Place();
    if (cursor.horizontal) {
        const double y = Sharp(scale.PixelY(cursor.y));
        painter.drawLine(QLineF(place.left(), y, place.right(), y));
    } else {
        const double x = Sharp(scale.PixelX(cursor.x));
        painter.drawLine(QLineF(x, place.top(), x, place.bottom()));
    }
}

void DrawTextGround(QCPPainter& painter, const QRectF& place) {
    QColor ground = PlotColour(PlotPart::Ground);
    ground.setAlpha(ShineThrough);
    painter.fillRect(place, ground);
}

}  // namespace

void DrawCurve(QCPPainter& painter, const PlotScale& scale, const Graph& graph) {
    painter.setAntialiasing(!graph.Parts().stairs);
    painter.setPen(PlotPen(PlotPart::Curve));
    DrawPlot(painter, scale, graph.Curve(), graph.Parts().stairs);
}

void DrawHeldCurves(QCPPainter& painter, const PlotScale& scale, const Graph& graph) {
    painter.setAntialiasing(!graph.Parts().stairs);
    for (const Held which : AllHeld) {
        painter.setPen(PlotPen(PartOf(which)));
        DrawPlot(painter, scale, graph.HeldCurve(which), graph.Parts().stairs);
    }
}

void DrawBox(QCPPainter& painter, const PlotScale& scale, const Graph& graph) {
    const std::optional<Graph::Axes>& box = graph.Box();
    if (!box) return;
    painter.setAntialiasing(false);
    painter.setPen(PlotPen(PlotPart::Box));
    painter.drawRect(
        QRectF(QPointF(Sharp(scale.PixelX(box->x.min)), Sharp(scale.PixelY(box->y.max))),
               QPointF(Sharp(scale.PixelX(box->x.max)), Sharp(scale.PixelY(box->y.min)))));
}

void DrawCursors(QCPPainter& painter, const PlotScale& scale, const Graph& graph) {
    painter.setAntialiasing(false);
    for (int i = 0; i < graph.CursorCount(); ++i)
        if (i != graph.chosen) DrawCursor(painter, scale, graph.CursorAt(i), false);
    if (graph.chosen >= 0 && graph.chosen < graph.CursorCount())
        DrawCursor(painter, scale, graph.CursorAt(graph.chosen), true);
}

void DrawCaptions(QCPPainter& painter, const PlotScale& scale, const Graph& graph) {
    if (graph.Labels().empty()) return;
    painter.setPen(PlotColour(PlotPart::Text));
    for (const Caption& caption :
         LayOutCaptions(graph.Labels(), scale, QFontMetricsF(painter.font()))) {
        DrawTextGround(painter, caption.place);
        painter.drawText(caption.place, Qt::AlignCenter | Qt::TextDontClip, caption.text);
    }
}

void DrawEmptyText(QCPPainter& painter, const PlotScale& scale, const Graph& graph) {
    if (!graph.Curve().values.empty() || graph.emptyText->empty()) return;
    constexpr int flags = Qt::AlignCenter | Qt::TextWordWrap;
    const QString text = Shown(graph.emptyText.Get());
    DrawTextGround(painter, painter.boundingRect(scale.Place(), flags, text));
    painter.setPen(PlotColour(PlotPart::Text));
    painter.drawText(scale.Place(), flags, text);
}

}  // namespace kelvra::desktop
