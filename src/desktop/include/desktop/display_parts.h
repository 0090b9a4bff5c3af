// SPDX-License-Identifier: GPL-3.0-or-later
// What the windows of the displays are put together from.
#pragma once

#include <QLabel>
#include <QVBoxLayout>

#include "controls/graph.h"
#include "desktop/qt_dialogs.h"
#include "desktop/widget_maker.h"

namespace kelvra::desktop {

// A frame whose widgets are in sight on a dark background, too.
QWidget* MakeRoom(QVBoxLayout*& column);

// Widgets that belong together and stay on one line.
QWidget* Together(std::initializer_list<QWidget*> widgets);
QWidget* Captioned(QLabel* caption, QWidget* widget);

// The graph with its menu, and what is under the mouse.
QVBoxLayout* MakeGraph(controls::Graph& graph, const controls::Label& pointed,
                       controls::MenuItem& entries, WidgetMaker& maker, QtDialogs& dialogs);

}  // namespace kelvra::desktop
