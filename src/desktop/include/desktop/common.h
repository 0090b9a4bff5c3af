// SPDX-License-Identifier: GPL-3.0-or-later
// What all adapters do alike: enabled, visible, tooltip, colours, sizes.
#pragma once

#include <QColor>
#include <QWidget>
#include <string>

#include "controls/control.h"

namespace kelvra::desktop {

// A colour of the rules (blue-green-red).
QColor ToolkitColour(controls::Colour colour);

// Twips (15 to a pixel at 96 dpi) in the widget's logical pixels.
int Pixels(int twips);
int Twips(int pixels);

// Enabled, visible, tooltip, background and text colour. A dark background gets white text.
void UpdateCommon(QWidget& widget, const controls::Control& control);

// A text for a tooltip, which would take some texts for markup.
QString TooltipText(const std::string& text);

// The tooltip while the control has none.
void SetOwnTooltip(QWidget& widget, const QString& text);

// The control's caption, or its name where it has none, with the mnemonic marked as the toolkit
// wants it.
QString MarkedText(const controls::Control& control, const std::string& caption);

// For screen readers: what the control is, in words, where its caption doesn't say it.
void Describe(QWidget& widget, const QString& name);

}  // namespace kelvra::desktop
