// SPDX-License-Identifier: GPL-3.0-or-later
// The rules of the main window's frame: the places of the child windows, which are visible, the
// menu entries that show windows, and the colours.
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
    // Gives the windows their places at start-up; the displays are hidden.
    void PlaceWindows();

    // Shows or hides the displays and arranges the windows: the displays share the height beside
    // the result table, and the slot table is below it. A place without room is not applied.
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

// Keeps the window above others, or not; it stays in its place.
void AlwaysOnTop(controls::Window& window, bool onTop);

}  // namespace kelvra::ui
