// SPDX-License-Identifier: GPL-3.0-or-later
// Where a graph's texts are drawn: whole, inside the graph, centred at their x. Where they would
// overlap, only every second, third, ... is shown.
#pragma once

#include <QFontMetricsF>
#include <QRectF>
#include <QString>
#include <vector>

#include "desktop/plot_scale.h"

namespace kelvra::desktop {

struct Caption {
    QRectF place;  // pixels
    QString text;
};

std::vector<Caption> LayOutCaptions(const std::vector<controls::Graph::Text>& labels,
                                    const PlotScale& scale, const QFontMetricsF& metrics);

}  // namespace kelvra::desktop
