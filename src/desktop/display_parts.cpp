// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/display_parts.h"

#include <QHBoxLayout>

#include "desktop/common.h"
#include "desktop/elided_label.h"
#include "desktop/focus_ring.h"
#include "desktop/graph_menu.h"
#include "desktop/graph_widget.h"

namespace kelvra::desktop {

QWidget* MakeRoom(QVBoxLayout*& column) {
    auto* all = new QWidget;
    column = new QVBoxLayout(all);
    column->setContentsMargins(Margin, Margin / 2, Margin, Margin / 2);
    column->setSpacing(Margin / 2);
    new FocusRing(all);
    return all;
}

QWidget* Together(std::initializer_list<QWidget*> widgets) {
    auto* group = new QWidget;
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Margin / 2);
    for (QWidget* widget : widgets) row->addWidget(widget);
    return group;
}

QWidget* Captioned(QLabel* caption, QWidget* widget) {
    caption->setBuddy(widget);
    return Together({caption, widget});
}

QVBoxLayout* MakeGraph(controls::Graph& graph, const controls::Label& pointed,
                       controls::MenuItem& entries, WidgetMaker& maker, QtDialogs& dialogs) {
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    GraphWidget* widget = maker.Make(graph);
    GiveGraphMenu(*widget, entries, dialogs);
    column->addWidget(widget, 1);
    column->addSpacing(Margin / 2);
    column->addWidget(maker.Make(pointed, new ElidedLabel(1)));
    return column;
}

}  // namespace kelvra::desktop
