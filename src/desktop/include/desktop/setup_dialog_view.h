// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the setup dialog: the header with sensor, mode and pages, the page that is chosen,
// and the error strip, for which there is always room, so that nothing jumps. Widgets and their
// adapters, no rules.
#pragma once

#include "desktop/dialog_window.h"
#include "desktop/mirror.h"
#include "desktop/widget_maker.h"
#include "forms/setup_form.h"

namespace kelvra::desktop {

class SetupDialogView {
public:
    // `area` is what the dialog's place counts from. The keys of the frame's `shared` menu entries
    // work in the dialog, too.
    SetupDialogView(forms::SetupForm& form, Mirror& mirror, QWidget& area,
                    const QList<QAction*>& shared);

    DialogWindow& Window() { return window_; }

private:
    QWidget* Build();
    QWidget* BuildHeader();
    QWidget* BuildPages();
    QWidget* BuildErrorStrip();
    void AddPageKeys();

    forms::SetupForm& form_;
    WidgetMaker maker_;
    DialogWindow window_;
};

}  // namespace kelvra::desktop
