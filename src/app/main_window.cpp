// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_window.h"

namespace kelvra::app {

using controls::Geometry;

namespace {

// Twips.
constexpr int Margin = 60;  // to the frame
constexpr int Step = 120;   // from the end of one window to the start of the next, both margins
constexpr int WidthMargins = 240;
constexpr int HeightMargins = 180;
constexpr int StartHeightMargin = 700;

void Place(controls::Window& window, const Geometry& place) {
    if (place.width > 0 && place.height > 0) window.Place = place;
}

}  // namespace

MainWindow::MainWindow(forms::Forms& forms, measure::MeasureState& state, platform::Host& host)
    : forms_(forms), state_(state), host_(host) {
    forms_.mdiMain.Resize.Connect([this] { ArrangeWindows(); });
    forms_.mdiMain.Show_Settings.Click.Connect([this] { ShowSettings(); });
    forms_.mdiMain.SettingAlwaysOnTop.Click.Connect([this] { ToggleAlwaysOnTop(); });
    forms_.mdiMain.Helpfunction.Click.Connect([this] {
        platform::Computer& computer = host_.computer;
        host_.dialogs.OpenHelp(computer.Join(computer.ProgramFolder(), "KelvraHelp.chm"), 0);
    });
}

void MainWindow::ApplyColourScheme() {
    forms::MDIMain& main = forms_.mdiMain;
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &main.MainFuncFrame, &main.ConnectedFrame, &main.CalcFrame, &main.ConSensors,
             &main.MainTools})
        control->Back = controls::DarkBlue;
    for (controls::Grid* grid :
         {&main.CalcGrid, &forms_.statusForm.ResultGrid, &forms_.timeSlotTabForm.TimeSlots}) {
        grid->Back = controls::Cyan;
        grid->FixedBack = controls::DarkCyan;
        grid->EmptyBack = controls::Blue;
    }
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &forms_.statusForm.SensorFrame, &forms_.scopeDisp, &forms_.timeSlotDisp,
             &forms_.timeSlotTabForm})
        control->Back = controls::Blue;
}

void MainWindow::PlaceWindows() {
    forms::SetupForm& dialog = forms_.setupForm;
    dialog.Place = Geometry{Margin, Margin, dialog.Place->width, dialog.Place->height};
    dialog.Tag = "";
    forms::StatusForm& status = forms_.statusForm;
    status.Place = Geometry{Margin, Margin, status.Place->width, status.Place->height};
    status.Visible = true;

    const Geometry& main = forms_.mdiMain.Place.Get();
    const Geometry& table = status.Place.Get();
    const int height = main.height / 2 - StartHeightMargin;
    const int left = table.width + Step;
    const int width = main.width - table.width - WidthMargins;
    Place(forms_.scopeDisp, {left, Margin, width, height});
    Place(forms_.timeSlotDisp, {left, height + Step, width, height});
    controls::Window& slots = forms_.timeSlotTabForm;
    Place(slots, {Margin, table.height + Step, table.width, slots.Place->height});
    for (controls::Window* display :
         std::initializer_list<controls::Window*>{&forms_.scopeDisp, &forms_.timeSlotDisp, &slots})
        display->Visible = false;
}

void MainWindow::ArrangeWindows() {
    forms_.scopeDisp.Visible = state_.ScopeModeActive;
    forms_.timeSlotDisp.Visible = state_.TimeSlotModeActive;
    forms_.timeSlotTabForm.Visible = state_.TimeSlotModeActive;
    PlaceDisplays();
}

void MainWindow::PlaceDisplays() {
    const Geometry& main = forms_.mdiMain.Place.Get();
    const Geometry& table = forms_.statusForm.Place.Get();
    const int left = table.width + Step;
    const int width = main.width - table.width - WidthMargins;
    const int free = main.height - forms_.mdiMain.MainTools.Place->height - HeightMargins;
    const bool both = state_.ScopeModeActive && state_.TimeSlotModeActive;
    const int height = both ? free / 2 : free;
    if (state_.ScopeModeActive) Place(forms_.scopeDisp, {left, Margin, width, height});
    if (state_.TimeSlotModeActive) {
        Place(forms_.timeSlotDisp, {left, both ? height + Step : Margin, width, height});
        Place(forms_.timeSlotTabForm,
              {Margin, table.height + Step, table.width, free - table.height - Margin});
    }
}

void MainWindow::ShowSettings() {
    controls::Window& dialog = forms_.setupForm;
    const Geometry& table = forms_.statusForm.Place.Get();
    dialog.Place = Geometry{table.left + table.width + Margin, Margin, dialog.Place->width,
                            dialog.Place->height};
    dialog.Visible = true;
    dialog.Tag = "shown";
}

void MainWindow::ToggleAlwaysOnTop() {
    controls::MenuItem& item = forms_.mdiMain.SettingAlwaysOnTop;
    item.Checked = !item.Checked.Get();
    AlwaysOnTop(forms_.setupForm, item.Checked);
}

void AlwaysOnTop(controls::Window& window, bool onTop) {
    window.TopMost = onTop;
}

}  // namespace kelvra::app
