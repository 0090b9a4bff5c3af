// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of the main window's frame: where the child windows stand, which are visible, the menu
// entries that show windows, and the colours.
#pragma once

#include "forms/forms.h"
#include "measure/listener.h"
#include "measure/state.h"
#include "platform/host.h"

namespace kelvra::ui {

class MainWindow final : public measure::MeasurementListener {
public:
    // Connects the events of the main window that belong to its frame.
    MainWindow(forms::Forms& forms, measure::MeasureState& state, platform::Host& host);

    void ApplyColourScheme();
    // Where the windows stand at start-up; the displays are hidden.
    void PlaceWindows();

    // Shows or hides the displays and gives them their places: the displays share the height beside
    // the result table, the slot table stands below it. A place without room is not applied.
    void ArrangeWindows();
    void ModesChanged() override { ArrangeWindows(); }

    void ShowSettings();
    void ToggleAlwaysOnTop();

private:
    void PlaceDisplays();

    forms::Forms& forms_;
    measure::MeasureState& state_;
    platform::Host& host_;
};

// Makes the window stay above others, or not, where it is.
void AlwaysOnTop(controls::Window& window, bool onTop);

}  // namespace kelvra::ui
