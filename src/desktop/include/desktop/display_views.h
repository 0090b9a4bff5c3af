// SPDX-License-Identifier: GPL-3.0-or-later
// What is in the windows that show what a sensor has measured. Widgets and their adapters, no
// rules.
#pragma once

#include "desktop/qt_dialogs.h"
#include "desktop/widget_maker.h"
#include "forms/displays.h"

namespace kelvra::desktop {

// Choices above the graph, in as many lines as they need; what is under the mouse below it, and the
// pulse's readings at its right.
QWidget* MakeTraceView(forms::ScopeDisp& form, WidgetMaker& maker, QtDialogs& dialogs);

QWidget* MakeSlotView(forms::TimeSlotDisp& form, WidgetMaker& maker, QtDialogs& dialogs);

QWidget* MakeSlotTableView(forms::TimeSlotTabForm& form, WidgetMaker& maker);

}  // namespace kelvra::desktop
