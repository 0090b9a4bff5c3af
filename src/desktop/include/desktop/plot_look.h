// SPDX-License-Identifier: GPL-3.0-or-later
// Colours and line styles of what a graph shows, in the current scheme. Two things that may be in
// the same picture differ in both.
#pragma once

#include <QPen>
#include <span>

#include "controls/graph.h"
#include "desktop/schemes.h"

namespace kelvra::desktop {

enum class PlotPart {
    Ground,
    Text,
    Grid,
    Curve,
    Maximum,
    Minimum,
    Reference,
    Box,
    Level,
    Origin,
    ZoneStart,
    ZoneStop,
    Division,
    Limit,
    Series1,
    Series2,
    Series3,
    Series4,
    Series5,
    Series6,
    Series7,
    Series8,
};

QColor PlotColour(PlotPart part);
// A line of one logical pixel, or of three if it is chosen.
QPen PlotPen(PlotPart part, bool chosen = false);
// The colour through which what is below can be seen.
QColor PlotTint(PlotPart part);

PlotPart PartOf(controls::Held which);
PlotPart PartOf(controls::CursorLook look);
// There are eight looks; the ninth series has the first one again.
PlotPart PartOf(const controls::Graph::Series& series);

// What must be seen on the ground, for checks.
struct PlotMark {
    PlotPart part{};
    const char* what = "";
};
std::span<const PlotMark> PlotMarks();

}  // namespace kelvra::desktop
