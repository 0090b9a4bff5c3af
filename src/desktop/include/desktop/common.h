// SPDX-License-Identifier: GPL-3.0-or-later
// What adapters and views share: tooltips, mnemonics, sizes and places.
#pragma once

#include <QRect>
#include <QScreen>
#include <QWidget>
#include <string>

#include "controls/control.h"

namespace kelvra::desktop {

constexpr int Margin = 8;  // logical pixels, around what is in a frame

// Twips (15 to a pixel at 96 dpi) in the widget's logical pixels.
int Pixels(int twips);
int Twips(int pixels);

// A text for a tooltip: nothing in it is taken for markup, and long lines are wrapped.
QString TooltipText(const QString& text);

// For the mouse and for screen readers.
void ShowTooltip(QWidget& widget, const QString& text);

// The tooltip to show after the control's.
void SetOwnTooltip(QWidget& widget, const QString& text);
QString OwnTooltip(const QWidget& widget);

// The control's caption, or its name if it has none, with the mnemonic marked as the toolkit
// expects it.
QString MarkedText(const controls::Control& control, const std::string& caption);

// The widget's place stays as it is when it is hidden.
void KeepRoom(QWidget& widget);

// The place of a window, moved and cut to the free part of a screen that is too small, with room
// for its title bar.
QRect OnScreen(QRect wanted, const QScreen& screen, const QWidget& window);

}  // namespace kelvra::desktop
