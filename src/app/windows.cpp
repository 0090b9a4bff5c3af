// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windows.h"

#include <initializer_list>

namespace kelvra::app {

Windows::Windows(forms::Forms& forms, sensors::SensorTable& table, measure::MeasureState& state,
                 measure::Cycle& cycle, platform::Host& host)
    : notice(forms.mdiMain),
      errorStrip(forms.setupForm, notice, table, host.dialogs),
      selection(table),
      lists(forms, table, selection),
      results(forms.statusForm, table, selection, host.computer.Numbers()),
      marks(forms.statusForm, table, host.events),
      calcGrid(forms.mdiMain, table, host),
      speed(forms.mdiMain, host),
      runButtons(forms, cycle),
      recordMenu(forms.mdiMain),
      displayLists(forms, table),
      mainWindow(forms, state, host),
      startMessages(host.dialogs),
      sensorName(forms, table, host, results, selection, lists, notice) {}

void Windows::Subscribe(measure::News& news, driver::SessionNews& session) {
    for (measure::MeasurementListener* listener :
         std::initializer_list<measure::MeasurementListener*>{
             &runButtons, &lists, &results, &errorStrip, &displayLists, &mainWindow, &speed,
             &calcGrid, &notice, &recordMenu, &startMessages})
        news.measurement.Add(*listener);
    news.slot.Add(marks);
    news.slot.Add(results);
    session.notices.Add(errorStrip);
    session.marks.Add(marks);
}

}  // namespace kelvra::app
