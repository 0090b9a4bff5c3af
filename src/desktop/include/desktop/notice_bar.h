// SPDX-License-Identifier: GPL-3.0-or-later
// The one place for errors and for what is waited for: always as high, with a picture of its kind,
// a button that copies the text, and one that shows the whole of it in a window.
#pragma once

#include <QWidget>

#include "desktop/widget_maker.h"
#include "forms/main_window.h"

namespace kelvra::desktop {

// The caller puts it into a layout.
QWidget* MakeNoticeBar(forms::MDIMain& form, WidgetMaker& maker);

}  // namespace kelvra::desktop
