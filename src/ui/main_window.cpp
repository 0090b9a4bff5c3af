// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/main_window.h"

#include <utility>

#include "ui/help.h"

namespace kelvra::ui {

using controls::Geometry;

namespace {

// Twips.
constexpr int Margin = 60;  // to the frame
constexpr int Step = 120;   // from the end of one window to the start of the next, both margins
constexpr int WidthMargins = 240;
constexpr int HeightMargins = 180;
constexpr int StartHeightMargin = 700;

void Place(controls::Window& window, const Geometry& place) {
    if (place.width > 0 && place.height > 0) window.place = place;
}

}  // namespace

MainWindow::MainWindow(forms::Forms& forms, measure::MeasureState& state, platform::Host& host)
    : forms_(forms), state_(state), host_(host) {
    forms_.mdiMain.resize.Connect([this] { ArrangeWindows(); });
    forms_.mdiMain.Show_Settings.click.Connect([this] { ShowSettings(); });
    forms_.mdiMain.SettingAlwaysOnTop.click.Connect([this] { ToggleAlwaysOnTop(); });
    const std::pair<controls::MenuItem*, controls::Window*> displays[] = {
        {&forms_.mdiMain.WindowTrace, &forms_.scopeDisp},
        {&forms_.mdiMain.WindowSlots, &forms_.timeSlotDisp},
        {&forms_.mdiMain.WindowSlotTable, &forms_.timeSlotTabForm}};
    for (const auto& [entry, window] : displays) {
        entry->enabled = false;
        entry->click.Connect([window = window] { window->Present(); });
    }
    forms_.mdiMain.WindowTrend.click.Connect([this] { forms_.trendForm.Present(); });
    forms_.mdiMain.Helpfunction.click.Connect([this] { OpenHelp(host_, 0); });
}

void MainWindow::ApplyColourScheme() {
    forms::MDIMain& main = forms_.mdiMain;
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &main.MainFuncFrame, &main.ConnectedFrame, &main.CalcFrame, &main.ConSensors,
             &main.MainTools})
        control->back = controls::DarkBlue;
    for (controls::Grid* grid :
         {&main.CalcGrid, &forms_.statusForm.ResultGrid, &forms_.timeSlotTabForm.TimeSlots,
          &forms_.trendForm.TrendValues}) {
        grid->back = controls::Cyan;
        grid->fixedBack = controls::DarkCyan;
        grid->emptyBack = controls::Blue;
    }
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &forms_.statusForm.SensorFrame, &forms_.scopeDisp, &forms_.timeSlotDisp,
             &forms_.timeSlotTabForm, &forms_.trendForm})
        control->back = controls::Blue;
}

void MainWindow::PlaceWindows() {
    forms::SetupForm& dialog = forms_.setupForm;
    dialog.place = Geometry{Margin, Margin, dialog.place->width, dialog.place->height};
    dialog.tag = "";
    forms::StatusForm& status = forms_.statusForm;
    status.place = Geometry{Margin, Margin, status.place->width, status.place->height};
    status.visible = true;

    const Geometry& main = forms_.mdiMain.place.Get();
    const Geometry& table = status.place.Get();
    const int height = main.height / 2 - StartHeightMargin;
    const int left = table.width + Step;
    const int width = main.width - table.width - WidthMargins;
    Place(forms_.scopeDisp, {left, Margin, width, height});
    Place(forms_.timeSlotDisp, {left, height + Step, width, height});
    Place(forms_.trendForm, {left, Margin, width, 2 * height + Step});
    controls::Window& slots = forms_.timeSlotTabForm;
    Place(slots, {Margin, table.height + Step, table.width, slots.place->height});
    for (controls::Window* display :
         std::initializer_list<controls::Window*>{&forms_.scopeDisp, &forms_.timeSlotDisp, &slots})
        display->visible = false;
}

void MainWindow::ArrangeWindows() {
    forms_.scopeDisp.visible = state_.traceModeActive;
    forms_.timeSlotDisp.visible = state_.timeSlotModeActive;
    forms_.timeSlotTabForm.visible = state_.timeSlotModeActive;
    forms_.mdiMain.WindowTrace.enabled = state_.traceModeActive;
    forms_.mdiMain.WindowSlots.enabled = state_.timeSlotModeActive;
    forms_.mdiMain.WindowSlotTable.enabled = state_.timeSlotModeActive;
    PlaceDisplays();
}

void MainWindow::PlaceDisplays() {
    const Geometry& main = forms_.mdiMain.place.Get();
    const Geometry& table = forms_.statusForm.place.Get();
    const int left = table.width + Step;
    const int width = main.width - table.width - WidthMargins;
    const int free = main.height - forms_.mdiMain.MainTools.place->height - HeightMargins;
    const bool both = state_.traceModeActive && state_.timeSlotModeActive;
    const int height = both ? free / 2 : free;
    Place(forms_.trendForm, {left, Margin, width, free});
    if (state_.traceModeActive) Place(forms_.scopeDisp, {left, Margin, width, height});
    if (state_.timeSlotModeActive) {
        Place(forms_.timeSlotDisp, {left, both ? height + Step : Margin, width, height});
        Place(forms_.timeSlotTabForm,
              {Margin, table.height + Step, table.width, free - table.height - Margin});
    }
}

void MainWindow::ShowSettings() {
    controls::Window& dialog = forms_.setupForm;
    const Geometry& table = forms_.statusForm.place.Get();
    dialog.place = Geometry{table.left + table.width + Margin, Margin, dialog.place->width,
                            dialog.place->height};
    dialog.Present();
    dialog.tag = "shown";
}

void MainWindow::ToggleAlwaysOnTop() {
    controls::MenuItem& item = forms_.mdiMain.SettingAlwaysOnTop;
    item.checked = !item.checked.Get();
    AlwaysOnTop(forms_.setupForm, item.checked);
}

void AlwaysOnTop(controls::Window& window, bool onTop) {
    window.topMost = onTop;
}

}  // namespace kelvra::ui
