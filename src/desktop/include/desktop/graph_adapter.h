// SPDX-License-Identifier: GPL-3.0-or-later
// The adapter of a graph. The widget takes in what has changed when it is painted.
#pragma once

#include "controls/graph.h"
#include "desktop/graph_widget.h"
#include "desktop/schemes.h"
#include "desktop/widget_adapter.h"

namespace kelvra::desktop {

class GraphAdapter final : public WidgetAdapter {
public:
    GraphAdapter(const controls::Graph& graph, GraphWidget& widget)
        : graph_(graph), widget_(widget) {}
    void Update() override;

private:
    const controls::Graph& graph_;
    GraphWidget& widget_;
    Scheme scheme_ = CurrentScheme();
};

}  // namespace kelvra::desktop
