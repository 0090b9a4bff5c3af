// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the window with a sensor's information: names and values side by side, which scroll
// together.
#pragma once

#include "desktop/dialog_window.h"
#include "desktop/widget_maker.h"
#include "forms/dialogs.h"

namespace kelvra::desktop {

class InfoWindowView {
public:
    // `area` is what the window's place counts from.
    InfoWindowView(forms::SensInfoForm& form, Mirror& mirror, QWidget& area);

    DialogWindow& Window() { return window_; }

private:
    QWidget* Build();

    forms::SensInfoForm& form_;
    WidgetMaker maker_;
    DialogWindow window_;
};

}  // namespace kelvra::desktop
