// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of records in the toolkit, in the current scheme. Which of a widget's colours the
// record's background and text set depends on its kind.
#pragma once

#include <QWidget>

#include "controls/control.h"

namespace kelvra::desktop {

// Gives the widget the record's colours; where the record has none, the toolkit's. Text on
// a background is readable. Grids colour their cells themselves.
void UpdateColours(QWidget& widget, const controls::Control& control);

}  // namespace kelvra::desktop
