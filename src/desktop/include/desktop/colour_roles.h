// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of records in the toolkit. Which of a widget's colours the record's background and
// text set depends on its kind.
#pragma once

#include <QColor>
#include <QWidget>

#include "controls/control.h"

namespace kelvra::desktop {

// A colour of the rules (blue-green-red).
QColor ToolkitColour(controls::Colour colour);

// Gives the widget the record's colours; where the record has none, the toolkit's. A dark
// background gets white text. Grids colour their cells themselves.
void UpdateColours(QWidget& widget, const controls::Control& control);

}  // namespace kelvra::desktop
