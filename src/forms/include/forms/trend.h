// SPDX-License-Identifier: GPL-3.0-or-later
// The trend window: the readings of all sensors over time, what they were between two moments, and
// limits for them. What is drawn, and what limits do, is elsewhere.
#pragma once

#include "controls/graph.h"
#include "forms/kinds.h"

namespace kelvra::forms {

struct TrendForm : Window {
    explicit TrendForm(controls::Changes& changes)
        : Window(changes, "TrendForm", "Trend", {5640, 60, 9000, 7200}) {
        TrendPause.tooltip = "Lets the picture stand still; readings are kept meanwhile";
        TrendZoom.tooltip = "Shows the part on which a rectangle is drawn; again shows all";
        ResetCounts.tooltip =
            "Begins to count the readings outside the limits anew, for all sensors";
        ClearTrend.tooltip = "Forgets all readings that are shown here";
    }

    ListField TrendSensor{*this,
                          "TrendSensor",
                          {.label = "lblTrendSensor",
                           .caption = "Sensor",
                           .explanation = "The sensor that is drawn in front, with its limits"}};
    ListField TrendSpan{*this,
                        "TrendSpan",
                        {.label = "lblTrendSpan",
                         .caption = "Span",
                         .explanation = "How much time the graph shows"}};
    ListField TrendUnit{
        *this,
        "TrendUnit",
        {.label = "lblTrendUnit", .caption = "Unit", .explanation = "Levels or powers"}};
    CheckBox TrendPause{*this, "TrendPause", "Pause"};
    Button TrendZoom{*this, "TrendZoom", "", "zoomPic", {.name = "Zoom"}};
    TextField LowLimit{*this,
                       "LowLimit",
                       {.label = "lblLowLimit",
                        .caption = "Low limit",
                        .explanation = "A reading of the chosen sensor below this level is "
                                       "marked and counted; empty for no limit"}};
    TextField HighLimit{*this,
                        "HighLimit",
                        {.label = "lblHighLimit",
                         .caption = "High limit",
                         .unit = "dBm",
                         .explanation = "A reading of the chosen sensor above this level is "
                                        "marked and counted; empty for no limit"}};
    Button ResetCounts{*this, "ResetCounts", "Reset counts"};
    Button ClearTrend{*this, "ClearTrend", "Clear"};
    controls::Graph TrendGraph{
        *this,
        "TrendGraph",
        {.xTitle = "", .yTitle = "Power (dBm)", .timeAxis = true, .name = "Readings over time"}};
    Label lblPointed{*this, "lblTrendPointed"};  // the readings under the mouse
    Grid TrendValues{*this,
                     "TrendValues",
                     1,
                     6,
                     {.name = "Values of the shown time",
                      .explanation = "A click on a row chooses its sensor."}};
    MenuItem TrendMenu{*this, "TrendMenu", "Trend"};
    MenuItem CopyTrend{TrendMenu, "CopyTrend", "Copy data", {.mnemonic = 'D'}};
    MenuItem SaveTrend{TrendMenu, "SaveTrend", "Save data", {.mnemonic = 'a'}};
};

}  // namespace kelvra::forms
