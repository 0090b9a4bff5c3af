// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windows.h"

#include <initializer_list>

#include "ui/help.h"

namespace kelvra::app {

Windows::Windows(forms::Forms& forms, sensors::SensorTable& table, measure::MeasureState& state,
                 measure::Cycle& cycle, measure::SensorCommands& commands, measure::Modes& modes,
                 const driver::DriverLibrary& drivers, platform::Host& host)
    : notice(forms.mdiMain, table, host.clock),
      errorStrip(forms.setupForm, notice, table, host.dialogs),
      selection(table),
      lists(forms, table, selection),
      readingAge(forms.statusForm, table, host.clock),
      results(forms.statusForm, table, selection, readingAge, host.computer),
      marks(forms.statusForm, table, host.events),
      calcGrid(forms.mdiMain, table, history, host),
      speed(forms.mdiMain, host),
      enabling(forms, table, selection),
      recordMenu(forms.mdiMain),
      displayLists(forms, table, selection),
      mainWindow(forms, state, host),
      startMessages(host.dialogs),
      sensorName({forms.setupForm, table, host.computer, results, selection, notice}),
      edits(table, modes, history),
      editMenu({forms.mdiMain, table, history, edits, calcGrid, selection}),
      setupDialog(
          {forms.setupForm, table, edits, selection, enabling, errorStrip, displayLists, host}),
      traceDisplay({forms, table, edits, setupDialog, displayLists, selection, host}),
      slotDisplay({forms, table, edits, setupDialog, displayLists, selection, host}),
      slotTable(forms, table, edits, displayLists, selection, host.computer),
      displayData(forms, table, notice, host),
      settingsCopy({forms, table, edits, selection, notice}),
      sensorCommands({forms, table, commands, notice, host}),
      aboutBox(forms, drivers, host) {
    ui::ConnectHelp(forms.timeForm, host);
    forms.mdiMain.StartIt.click.Connect([&cycle] { cycle.Start(); });
    forms.mdiMain.StopIt.click.Connect([&cycle, &commands] {
        if (!commands.Stop()) cycle.Stop();
    });
}

void Windows::Subscribe(measure::News& news, driver::SessionNews& session) {
    for (measure::MeasurementListener* listener :
         std::initializer_list<measure::MeasurementListener*>{
             &enabling, &sensorName, &lists, &results, &readingAge, &errorStrip, &displayLists,
             &mainWindow, &speed, &notice, &recordMenu, &startMessages, &settingsCopy,
             &traceDisplay, &slotDisplay, &slotTable})
        news.measurement.Add(*listener);
    for (measure::PassListener* listener : std::initializer_list<measure::PassListener*>{
             &speed, &calcGrid, &notice, &recordMenu, &readingAge})
        news.pass.Add(*listener);
    news.slot.Add(marks);
    for (measure::SlotListener* listener : std::initializer_list<measure::SlotListener*>{
             &results, &traceDisplay, &slotDisplay, &slotTable})
        news.slot.Add(*listener);
    for (measure::CommandListener* listener : std::initializer_list<measure::CommandListener*>{
             &enabling, &marks, &results, &sensorCommands})
        news.command.Add(*listener);
    session.notices.Add(errorStrip);
    session.marks.Add(notice);
    session.marks.Add(marks);
}

}  // namespace kelvra::app
