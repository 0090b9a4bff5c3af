// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/plot_drawing.h"

#include <cmath>

#include "desktop/plot_captions.h"
#include "desktop/plot_line.h"
#include "desktop/plot_look.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

using controls::Graph;
using controls::Held;

constexpr Held AllHeld[] = {Held::Maximum, Held::Minimum, Held::Reference};
constexpr int ShineThrough =
    200;  // of 255: how little of the lines is seen through a text's ground

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

// The ranges are behind all lines, the series in front is before the others.
void DrawSeries(QCPPainter& painter, const PlotScale& scale, const PlotSteps& x,
                const std::vector<Graph::Series>& all) {
    for (const Graph::Series& series : all)
        DrawArea(painter, scale, x, series.low, series.high, PlotTint(PartOf(series)));
    for (const bool front : {false, true})
        for (const Graph::Series& series : all) {
            if (series.front != front) continue;
            DrawManyLines(painter, scale, x, series.values, PlotPen(PartOf(series), front));
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
    const Graph::Plot& curve = graph.Curve();
    const PlotSteps x{curve.first, curve.step};
    if (!graph.AllSeries().empty()) return DrawSeries(painter, scale, x, graph.AllSeries());
    painter.setPen(PlotPen(PlotPart::Curve));
    DrawLine(painter, scale, x, curve.values, graph.Parts().stairs);
}

void DrawHeldCurves(QCPPainter& painter, const PlotScale& scale, const Graph& graph) {
    painter.setAntialiasing(!graph.Parts().stairs);
    for (const Held which : AllHeld) {
        painter.setPen(PlotPen(PartOf(which)));
        const Graph::Plot& curve = graph.HeldCurve(which);
        DrawLine(painter, scale, {curve.first, curve.step}, curve.values, graph.Parts().stairs);
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

void DrawLimits(QCPPainter& painter, const PlotScale& scale, const Graph& graph) {
    const QRectF& place = scale.Place();
    painter.setAntialiasing(false);
    const auto draw = [&](const std::optional<double>& limit, qreal edge) {
        if (!limit) return;
        const double y = Sharp(std::clamp(scale.PixelY(*limit), place.top(), place.bottom()));
        painter.fillRect(
            QRectF(QPointF(place.left(), y), QPointF(place.right(), edge)).normalized(),
            PlotTint(PlotPart::Limit));
        painter.setPen(PlotPen(PlotPart::Limit));
        const bool inSight = limit >= scale.Axes().y.min && limit <= scale.Axes().y.max;
        if (inSight) painter.drawLine(QLineF(place.left(), y, place.right(), y));
    };
    draw(graph.Limits().low, place.bottom());
    draw(graph.Limits().high, place.top());
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
    if (!graph.Curve().values.empty() || !graph.AllSeries().empty() || graph.emptyText->empty())
        return;
    constexpr int flags = Qt::AlignCenter | Qt::TextWordWrap;
    const QString text = Shown(graph.emptyText.Get());
    DrawTextGround(painter, painter.boundingRect(scale.Place(), flags, text));
    painter.setPen(PlotColour(PlotPart::Text));
    painter.drawText(scale.Place(), flags, text);
}

}  // namespace kelvra::desktop
