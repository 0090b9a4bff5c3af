// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/level_axis.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>

namespace kelvra::ui {

namespace {
constexpr double Span = 70;  // dB
constexpr double Grid = 5;   // dB

// The largest of the finite levels; nothing if there is none.
std::optional<double> HighestOf(std::span<const double> levels) {
    std::optional<double> highest;
    for (const double level : levels)
        if (std::isfinite(level)) highest = std::max(level, highest.value_or(level));
    return highest;
}

}  // namespace

controls::Graph::Axis AutomaticAxis(double highest) {
    double end = highest + 1;
    while (std::fmod(std::nearbyint(end), Grid) != 0) end += 1;
    return {end - Span, end};
}

void SetLevelAxis(controls::Graph& graph, bool automatic, const controls::Graph::Axis& typed) {
    if (!automatic)
        graph.SetY(typed);
    else if (const auto highest = HighestOf(graph.Curve().values))
        graph.SetY(AutomaticAxis(*highest));
}

}  // namespace kelvra::ui
