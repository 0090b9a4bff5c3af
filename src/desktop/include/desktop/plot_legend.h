// SPDX-License-Identifier: GPL-3.0-or-later
// What the lines of a graph are, if it has several curves: above the graph, in as many lines as the
// width needs.
#pragma once

#include <qcustomplot.h>

#include <string>
#include <vector>

#include "desktop/plot_look.h"

namespace kelvra::desktop {

struct LegendEntry {
    PlotPart part{};
    std::string name;
    bool chosen = false;
    bool operator==(const LegendEntry&) const = default;
};

// The series, or the curve and what it is compared with; empty if there is only one curve.
std::vector<LegendEntry> LegendOf(const controls::Graph& graph);

// In logical pixels; 0 without entries.
int LegendHeight(const std::vector<LegendEntry>& entries, int width, const QFontMetrics& metrics);
void DrawLegend(QCPPainter& painter, const std::vector<LegendEntry>& entries, const QRect& room);

}  // namespace kelvra::desktop
