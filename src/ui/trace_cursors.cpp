// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/trace_cursors.h"

#include <algorithm>
#include <cmath>

#include "sensors/settings_fields.h"
#include "util/number_text.h"

namespace kelvra::ui {

using controls::CursorLook;
using controls::Graph;
using sensors::SensorSettings;

namespace {

constexpr double MsPerSecond = 1000;
constexpr double LeastTime = 0.00001;  // s, that is left of a slot

double Rounded(double value, double steps) {
    return std::nearbyint(value * steps) / steps;
}

// Writes the cursor, which may be the next new one. A coordinate that the graph can't take hides
// it.
void Place(Graph& graph, int index, const Graph::Cursor& cursor) {
    if (index == graph.CursorCount()) graph.AddCursor({cursor.horizontal});
    if (graph.SetCursor(index, cursor)) return;
    Graph::Cursor hidden = graph.CursorAt(index);
    hidden.visible = false;
    graph.SetCursor(index, hidden);
}

Graph::Cursor Vertical(double x, bool visible, CursorLook look) {
    return {false, x, 0, visible, look};
}

bool Finite(const SensorSettings& s) {
    return std::isfinite(s.TrigLevel) && std::isfinite(s.TrigDelay) &&
           std::isfinite(s.ScopeOffset) && std::isfinite(s.TSlotWidth) &&
           std::isfinite(s.TSlotExclStart) && std::isfinite(s.TSlotExclStop);
}

double MostExclusion(double width, double other) {
    return std::max(width - other - LeastTime, 0.0);
}

// Takes the excess of the exclusions half from each, as far as each has something.
void FitExclusions(SensorSettings& settings) {
    const double excess =
        settings.TSlotExclStart + settings.TSlotExclStop + LeastTime - settings.TSlotWidth;
    if (excess <= 0) return;
    settings.TSlotExclStart = std::max(settings.TSlotExclStart - excess / 2, 0.0);
    settings.TSlotExclStop = std::max(settings.TSlotExclStop - excess / 2, 0.0);
    settings.TSlotExclStart = std::min(settings.TSlotExclStart,
                                       MostExclusion(settings.TSlotWidth, settings.TSlotExclStop));
    settings.TSlotExclStop = std::min(settings.TSlotExclStop,
                                      MostExclusion(settings.TSlotWidth, settings.TSlotExclStart));
}

}  // namespace

int ExclusionSlot(const SensorSettings& settings) {
    return std::clamp<int>(settings.TSlotExclDispInSlot, 0, std::max(settings.TSlotCount - 1, 0));
}

Graph::Axis ExclusionZone(const SensorSettings& settings) {
    const int slot = ExclusionSlot(settings);
    return {(slot * settings.TSlotWidth + settings.TSlotExclStart) * MsPerSecond,
            ((slot + 1) * settings.TSlotWidth - settings.TSlotExclStop) * MsPerSecond};
}

void PlaceCursors(Graph& graph, const SensorSettings& settings, bool slots) {
    const Graph::Axis zone = ExclusionZone(settings);
    Place(graph, TrigLevelCursor,
          {true, 0, settings.TrigLevel, settings.TrigSource == sensors::InternalTrigger,
           CursorLook::Level});
    Place(graph, ExclStartCursor, Vertical(zone.min, slots, CursorLook::ZoneStart));
    Place(graph, ExclStopCursor, Vertical(zone.max, slots, CursorLook::ZoneStop));
    Place(graph, TrigDelayCursor, Vertical(0, slots, CursorLook::Origin));
    const int markers = slots ? std::max<int>(settings.TSlotCount, 0) : 0;
    for (int k = 1; k <= markers; ++k)
        Place(graph, TrigDelayCursor + k,
              Vertical(k * settings.TSlotWidth * MsPerSecond, true, CursorLook::Division));
    while (graph.CursorCount() > TrigDelayCursor + 1 + markers)
        graph.RemoveCursor(graph.CursorCount() - 1);
}

SensorSettings AfterDrag(const SensorSettings& before, int cursor, double x, double y) {
    SensorSettings settings = before;
    constexpr double micro = 1e6;
    constexpr double tenths = 10;
    const double seconds = Rounded(x / MsPerSecond, micro);
    const double width = settings.TSlotWidth;
    const int slot = ExclusionSlot(settings);
    switch (cursor) {
        case TrigLevelCursor:
            settings.TrigLevel = Rounded(y, tenths);
            break;
        case ExclStartCursor:
            settings.TSlotExclStart = std::clamp(seconds - slot * width, 0.0,
                                                 MostExclusion(width, settings.TSlotExclStop));
            break;
        case ExclStopCursor:
            settings.TSlotExclStop = std::clamp((slot + 1) * width - seconds, 0.0,
                                                MostExclusion(width, settings.TSlotExclStart));
            break;
        case TrigDelayCursor:
            settings.TrigDelay += seconds;
            settings.ScopeOffset -= seconds;
            break;
        default:
            settings.TSlotWidth = std::max(x / (cursor - TrigDelayCursor) / MsPerSecond, LeastTime);
            FitExclusions(settings);
    }
    return Finite(settings) ? settings : before;
}

CursorValue ValueOf(const SensorSettings& settings, int cursor) {
    switch (cursor) {
        case TrigLevelCursor:
            return {"trigger level", settings.TrigLevel, "dBm"};
        case ExclStartCursor:
            return {"exclusion start", settings.TSlotExclStart * MsPerSecond};
        case ExclStopCursor:
            return {"exclusion stop", settings.TSlotExclStop * MsPerSecond};
        case TrigDelayCursor:
            return {"trigger delay", settings.TrigDelay * MsPerSecond};
        default:
            return {"slot width", settings.TSlotWidth * MsPerSecond};
    }
}

}  // namespace kelvra::ui
