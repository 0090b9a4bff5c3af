// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/plot_legend.h"

#include <algorithm>

#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

constexpr int Sample = 28;  // logical pixels: length of a line
constexpr int Gap = 6;
constexpr int MostCharacters = 14;

int MostWidth(const QFontMetrics& metrics) {
    return MostCharacters * metrics.averageCharWidth();
}

int EntryWidth(const std::vector<LegendEntry>& entries, const QFontMetrics& metrics) {
    int widest = 0;
    for (const LegendEntry& entry : entries)
        widest = std::max(widest, metrics.horizontalAdvance(Shown(entry.name)));
    return Sample + std::min(widest, MostWidth(metrics)) + 3 * Gap;
}

int Columns(const std::vector<LegendEntry>& entries, int width, const QFontMetrics& metrics) {
    return std::max(width / EntryWidth(entries, metrics), 1);
}

}  // namespace

std::vector<LegendEntry> LegendOf(const controls::Graph& graph) {
    using controls::Held;
    std::vector<LegendEntry> entries;
    for (const controls::Graph::Series& series : graph.AllSeries())
        entries.push_back({PartOf(series), series.name, series.front});
    constexpr std::pair<Held, const char*> held[] = {
        {Held::Maximum, "Maximum"}, {Held::Minimum, "Minimum"}, {Held::Reference, "Reference"}};
    for (const auto& [which, name] : held) {
        if (graph.HeldCurve(which).values.empty()) continue;
        if (entries.empty()) entries.push_back({PlotPart::Curve, "Now"});
        entries.push_back({PartOf(which), name});
    }
    return entries;
}

int LegendHeight(const std::vector<LegendEntry>& entries, int width, const QFontMetrics& metrics) {
    const int columns = Columns(entries, width, metrics);
    return (static_cast<int>(entries.size()) + columns - 1) / columns * metrics.height();
}

void DrawLegend(QCPPainter& painter, const std::vector<LegendEntry>& entries, const QRect& room) {
    const QFontMetrics metrics(painter.font());
    const int columns = Columns(entries, room.width(), metrics);
    const int width = EntryWidth(entries, metrics);
    const int line = metrics.height();
    painter.setAntialiasing(false);
    for (int i = 0; const LegendEntry& entry : entries) {
        const QPoint corner = room.topLeft() + QPoint(i % columns * width, i / columns * line);
        ++i;
        painter.setPen(PlotPen(entry.part, entry.chosen));
        painter.drawLine(QLineF(corner + QPoint(0, line / 2), corner + QPoint(Sample, line / 2)));
        painter.setPen(PlotColour(PlotPart::Text));
        painter.drawText(
            QRect(corner + QPoint(Sample + Gap, 0), QSize(width, line)),
            Qt::AlignVCenter | Qt::AlignLeft,
            metrics.elidedText(Shown(entry.name), Qt::ElideMiddle, MostWidth(metrics)));
    }
}

}  // namespace kelvra::desktop
