// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop front end: the whole program with Qt Widgets.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "app/kelvra.h"
#include "desktop/dialog_window.h"
#include "desktop/display_window.h"
#include "desktop/main_window_view.h"
#include "desktop/mirror.h"
#include "desktop/preferences.h"
#include "desktop/qt_dialogs.h"
#include "desktop/qt_events.h"
#include "desktop/result_window_view.h"
#include "desktop/view_menu.h"

namespace kelvra::desktop {

// The windows of a Kelvra. Create it after start-up, so that nothing is drawn twice.
class Desktop {
public:
    Desktop(app::Kelvra& kelvra, QtEvents& events, QtDialogs& dialogs,
            const std::string& dataFolder);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    Mirror& Painter() { return mirror_; }
    MainWindowView& Main() { return main_; }
    ResultWindowView& Results() { return results_; }

private:
    void Recolour();
    void AddDialog(controls::Window& record,
                   const std::function<QWidget*(WidgetMaker& maker)>& makeContent);
    void KeepLook();

    QtEvents& events_;
    Preferences preferences_;
    Scheme shown_ = Scheme::Classic;
    Mirror mirror_;
    MainWindowView main_;
    ResultWindowView results_;
    ViewMenu view_;
    DisplayWindows displays_;
    std::vector<std::unique_ptr<DialogWindow>> dialogs_;
};

}  // namespace kelvra::desktop
