// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windows.h"

#include <initializer_list>

#include "ui/help.h"

namespace kelvra::app {

Windows::Windows(const Parts& p)
    : notice(p.forms.mdiMain, p.table, p.host.clock),
      errorStrip(p.forms.setupForm, notice, p.table, p.host.dialogs),
      selection(p.table),
      lists(p.forms, p.table, selection),
      readingAge(p.forms.statusForm, p.table, p.host.clock),
      limits(p.forms.statusForm.ResultGrid, p.table, p.host.computer.Numbers()),
      results(p.forms.statusForm, p.table, selection, readingAge, limits, p.host.computer),
      marks(p.forms.statusForm, p.table, p.host.events),
      calcGrid(p.forms.mdiMain, p.table, history, p.host),
      speed(p.forms.mdiMain, p.host),
      enabling(p.forms, p.table, selection),
      recordMenu(p.forms, p.recorder, p.host),
      recordStatus(p.forms.mdiMain, p.recorder, p.state, p.table, notice, p.host),
      displayLists(p.forms, p.table, selection),
      mainWindow(p.forms, p.state, p.host),
      startMessages(p.host.dialogs),
      sensorName({p.forms.setupForm, p.table, p.host.computer, results, selection, notice}),
      edits(p.table, p.modes, history),
      editMenu({p.forms.mdiMain, p.table, history, edits, calcGrid, selection}),
      setupDialog({p.forms.setupForm, p.table, edits, selection, enabling, errorStrip, displayLists,
                   p.host}),
      traceDisplay({p.forms, p.table, edits, setupDialog, displayLists, selection, p.host}),
      slotDisplay({p.forms, p.table, edits, setupDialog, displayLists, selection, p.host}),
      slotTable(p.forms, p.table, edits, displayLists, selection, p.host.computer),
      trendWindow({p.forms, p.trend, p.table, limits, selection, p.host}),
      dataForm(p.host),
      displayData(p.forms, p.table, dataForm, notice, p.host),
      trendData(p.forms.trendForm, trendWindow, dataForm, notice, p.host),
      settingsCopy({p.forms, p.table, edits, selection, notice}),
      sensorCommands({p.forms, p.table, p.commands, notice, p.host}),
      aboutBox(p.forms, p.drivers, p.host) {
    ui::ConnectHelp(p.forms.timeForm, p.host);
    p.forms.mdiMain.StartIt.click.Connect([&cycle = p.cycle] { cycle.Start(); });
    p.forms.mdiMain.StopIt.click.Connect([&cycle = p.cycle, &commands = p.commands] {
        if (!commands.Stop()) cycle.Stop();
    });
}

void Windows::Subscribe(measure::News& news, driver::SessionNews& session) {
    for (measure::MeasurementListener* listener :
         std::initializer_list<measure::MeasurementListener*>{
             &enabling, &sensorName, &lists, &limits, &results, &readingAge, &errorStrip,
             &displayLists, &mainWindow, &speed, &notice, &recordStatus, &startMessages,
             &settingsCopy, &traceDisplay, &slotDisplay, &slotTable, &trendWindow})
        news.measurement.Add(*listener);
    for (measure::PassListener* listener : std::initializer_list<measure::PassListener*>{
             &speed, &calcGrid, &notice, &recordMenu, &recordStatus, &readingAge, &trendWindow})
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
