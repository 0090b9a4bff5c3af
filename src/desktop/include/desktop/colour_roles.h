// SPDX-License-Identifier: GPL-3.0-or-later
// Colours of the records on their way to the toolkit: which of a widget's colours a record's
// background and text are depends on its kind.
#pragma once

#include <QColor>
#include <QWidget>

#include "controls/control.h"

namespace kelvra::desktop {

// A colour of the rules (blue-green-red).
QColor ToolkitColour(controls::Colour colour);

// Gives the widget the colours that the record has; without them it has the toolkit's own again. A
// dark background gets white text. Grids colour their cells themselves.
void UpdateColours(QWidget& widget, const controls::Control& control);

}  // namespace kelvra::desktop
