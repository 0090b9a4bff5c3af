// SPDX-License-Identifier: GPL-3.0-or-later
// What the lines of a graph are, if it has several curves: above the graph, in as many lines as the
// width needs.
#pragma once

#include <qcustomplot.h>

#include <vector>

#include "desktop/plot_look.h"

namespace kelvra::desktop {

// Empty if there is only one curve.
std::vector<PlotPart> LegendParts(const controls::Graph& graph);

// In logical pixels; 0 without parts.
int LegendHeight(const std::vector<PlotPart>& parts, int width, const QFontMetrics& metrics);
void DrawLegend(QCPPainter& painter, const std::vector<PlotPart>& parts, const QRect& room);

}  // namespace kelvra::desktop
