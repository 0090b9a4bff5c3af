// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the main window: menus, tool strip, calculation grid, and the area for the windows
// inside it. Widgets and their adapters, no rules.
#pragma once

#include <QMdiArea>
#include <functional>

#include "desktop/mirror.h"
#include "desktop/widget_maker.h"
#include "desktop/window_adapters.h"
#include "forms/main_window.h"

class QHBoxLayout;

namespace kelvra::desktop {

class MainWindowView {
public:
    MainWindowView(forms::MDIMain& form, Mirror& mirror);

    // Call when everything in the frame has been created: from here on it may be shown.
    // `geometry` is what the toolkit wrote in an earlier run; empty for the record's place.
    void MirrorFrame(const QByteArray& geometry);

    FrameWindow& Widget() { return widget_; }
    QMdiArea& Area() { return *area_; }
    GridWidget& Formulas() { return *formulas_; }
    // For the front end's own entries.
    QMenu& WindowMenu() { return *windowMenu_; }
    QList<QAction*> EditEntries() const { return editMenu_->actions(); }

private:
    void BuildMenus();
    QWidget* BuildStrip();
    QHBoxLayout* BuildButtons();
    QHBoxLayout* BuildChoices();
    QWidget* BuildRecording();
    QHBoxLayout* BuildConnection();
    QWidget* BuildFormulas();
    void KeepResultsInSight();

    forms::MDIMain& form_;
    Mirror& mirror_;
    WidgetMaker maker_;
    FrameWindow widget_;
    QMdiArea* area_;
    GridWidget* formulas_;
    QMenu* windowMenu_ = nullptr;
    QMenu* editMenu_ = nullptr;
};

}  // namespace kelvra::desktop
