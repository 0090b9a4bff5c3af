// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/plot_legend.h"

#include <algorithm>
#include <iterator>

namespace kelvra::desktop {

namespace {

constexpr int Sample = 28;  // logical pixels: length of a line
constexpr int Gap = 6;

constexpr struct {
    PlotPart part{};
    const char* name = "";
} Names[] = {
    {PlotPart::Curve, "Now"},
    {PlotPart::Maximum, "Maximum"},
    {PlotPart::Minimum, "Minimum"},
    {PlotPart::Reference, "Reference"},
};

const char* NameOf(PlotPart part) {
    return std::find_if(std::begin(Names), std::end(Names),
                        [part](const auto& each) { return each.part == part; })
        ->name;
}

int EntryWidth(const QFontMetrics& metrics) {
    int widest = 0;
    for (const auto& each : Names) widest = std::max(widest, metrics.horizontalAdvance(each.name));
    return Sample + widest + 3 * Gap;
}

int Columns(int width, const QFontMetrics& metrics) {
    return std::max(width / EntryWidth(metrics), 1);
}

}  // namespace

std::vector<PlotPart> LegendParts(const controls::Graph& graph) {
    using controls::Held;
    std::vector<PlotPart> parts;
    for (const Held which : {Held::Maximum, Held::Minimum, Held::Reference})
        if (!graph.HeldCurve(which).values.empty()) parts.push_back(PartOf(which));
    if (!parts.empty()) parts.insert(parts.begin(), PlotPart::Curve);
    return parts;
}

int LegendHeight(const std::vector<PlotPart>& parts, int width, const QFontMetrics& metrics) {
    const int columns = Columns(width, metrics);
    return (static_cast<int>(parts.size()) + columns - 1) / columns * metrics.height();
}

void DrawLegend(QCPPainter& painter, const std::vector<PlotPart>& parts, const QRect& room) {
    const QFontMetrics metrics(painter.font());
    const int columns = Columns(room.width(), metrics);
    const int line = metrics.height();
    painter.setAntialiasing(false);
    for (int i = 0; const PlotPart part : parts) {
        const QPoint corner =
            room.topLeft() + QPoint(i % columns * EntryWidth(metrics), i / columns * line);
        ++i;
        painter.setPen(PlotPen(part));
        painter.drawLine(QLineF(corner + QPoint(0, line / 2), corner + QPoint(Sample, line / 2)));
        painter.setPen(PlotColour(PlotPart::Text));
        painter.drawText(QRect(corner + QPoint(Sample + Gap, 0), QSize(EntryWidth(metrics), line)),
                         Qt::AlignVCenter | Qt::AlignLeft, NameOf(part));
    }
}

}  // namespace kelvra::desktop
