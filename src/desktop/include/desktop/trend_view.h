// SPDX-License-Identifier: GPL-3.0-or-later
// What is in the trend window: choices and limits above the graph, in as many lines as they need,
// and a table of values below it. Widgets and their adapters, no rules.
#pragma once

#include "desktop/qt_dialogs.h"
#include "desktop/widget_maker.h"
#include "forms/trend.h"

namespace kelvra::desktop {

QWidget* MakeTrendView(forms::TrendForm& form, WidgetMaker& maker, QtDialogs& dialogs);

}  // namespace kelvra::desktop
