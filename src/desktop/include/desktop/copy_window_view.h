// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the window that copies settings to other sensors: what is copied, the sensors, the
// buttons.
#pragma once

#include "desktop/dialog_window.h"
#include "desktop/widget_maker.h"
#include "forms/copy_form.h"

namespace kelvra::desktop {

class CopyWindowView {
public:
    // `area` is what the window's place counts from.
    CopyWindowView(forms::CopyForm& form, Mirror& mirror, QWidget& area);

    DialogWindow& Window() { return window_; }

private:
    QWidget* Build();

    forms::CopyForm& form_;
    WidgetMaker maker_;
    DialogWindow window_;
};

}  // namespace kelvra::desktop
