// SPDX-License-Identifier: GPL-3.0-or-later
// Draws the parts of a graph's record, straight from the record.
#pragma once

#include <qcustomplot.h>

#include "desktop/plot_scale.h"

namespace kelvra::desktop {

// The curve, or the series.
void DrawCurve(QCPPainter& painter, const PlotScale& scale, const controls::Graph& graph);
void DrawHeldCurves(QCPPainter& painter, const PlotScale& scale, const controls::Graph& graph);
// The lines of the limits, and what is outside them.
void DrawLimits(QCPPainter& painter, const PlotScale& scale, const controls::Graph& graph);
void DrawBox(QCPPainter& painter, const PlotScale& scale, const controls::Graph& graph);
// The chosen one is thicker, and in front of the others.
void DrawCursors(QCPPainter& painter, const PlotScale& scale, const controls::Graph& graph);
void DrawCaptions(QCPPainter& painter, const PlotScale& scale, const controls::Graph& graph);
// What a graph without a curve waits for.
void DrawEmptyText(QCPPainter& painter, const PlotScale& scale, const controls::Graph& graph);

}  // namespace kelvra::desktop
