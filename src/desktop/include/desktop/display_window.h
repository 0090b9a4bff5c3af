// SPDX-License-Identifier: GPL-3.0-or-later
// The windows of the displays inside the frame: made when they are first shown, at the record's
// place until the user has moved or resized them.
#pragma once

#include <QMdiArea>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/mirror.h"
#include "desktop/preferences.h"
#include "desktop/qt_dialogs.h"
#include "desktop/widget_maker.h"
#include "desktop/window_adapters.h"
#include "forms/forms.h"

namespace kelvra::desktop {

class DisplayWindowAdapter final : public Adapter {
public:
    DisplayWindowAdapter(controls::Window& record, std::function<ChildWindow&()> make)
        : record_(record), make_(std::move(make)) {}
    void Update() override;

    std::function<void()> onUpdate;

private:
    controls::Window& record_;
    std::function<ChildWindow&()> make_;
    ChildWindow* window_ = nullptr;
    int presented_ = 0;  // as the window has seen it
    controls::Geometry shown_{};
};

class DisplayWindows {
public:
    struct Parts {
        forms::Forms& forms;
        Mirror& mirror;
        QMdiArea& area;
        QtDialogs& dialogs;
        Preferences& preferences;
        // Whether there are windows beside the results, and below them.
        std::function<void(bool beside, bool below)> onShown;
    };

    explicit DisplayWindows(Parts parts);

    // Keeps the places that the user has given, for the next run.
    void KeepPlaces();

private:
    using MakeContent = std::function<QWidget*(WidgetMaker& maker)>;

    void Add(controls::Window& record, const MakeContent& makeContent);
    ChildWindow& Make(controls::Window& record, const MakeContent& makeContent);

    Parts p_;
    std::vector<ChildWindow*> windows_;  // owned by the area
};

}  // namespace kelvra::desktop
