// SPDX-License-Identifier: GPL-3.0-or-later
// Draws values over an even x axis as lines and as areas. A value that is not finite leaves a gap;
// a value between two gaps is a point.
#pragma once

#include <qcustomplot.h>

#include <vector>

#include "desktop/plot_scale.h"

namespace kelvra::desktop {

// The x of the values.
struct PlotSteps {
    double first = 0, step = 0;
};

// With stairs, a value is a line from the x of the one before it to its own.
void DrawLine(QCPPainter& painter, const PlotScale& scale, const PlotSteps& x,
              const std::vector<double>& values, bool stairs);

// The same for long lines with that pen, several at once: as lines of one pixel beside each other,
// which the toolkit draws many times as fast as others.
void DrawManyLines(QCPPainter& painter, const PlotScale& scale, const PlotSteps& x,
                   const std::vector<double>& values, QPen pen);

// Fills what is between the two, which are as many.
void DrawArea(QCPPainter& painter, const PlotScale& scale, const PlotSteps& x,
              const std::vector<double>& low, const std::vector<double>& high,
              const QColor& colour);

}  // namespace kelvra::desktop
