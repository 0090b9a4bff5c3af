// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/kelvra.h"

namespace kelvra::app {

Kelvra::Kelvra(platform::Host& hostToUse)
    : host(hostToUse),
      log(host.files, host.clock, host.computer.Numbers()),
      catalogue(library.deviceList),
      driverSession(session, library.instrument, log, table, host.clock, sessionNews.notices),
      transfer(driverSession, table, sessionNews),
      readings(driverSession, table, host.random),
      modes(table, state, news),
      cycle({table, state, host, driverSession, transfer, readings, modes, news}),
      recovery(
          {table, state, host.events, driverSession, transfer, cycle, news, sessionNews.notices}),
      sensorCommands({table, state, host, driverSession, news}),
      trendCollector(trend, table, host.clock),
      recorder(table, state, host),
      windows({forms, table, state, cycle, sensorCommands, modes, recorder, trend, library, host}),
      store(host.files, log, windows.notice),
      limitsStore(host.files, log, windows.notice),
      discovery({forms, table, catalogue, session, state, modes, windows, store}),
      settingsCommands_(forms, table, windows.edits, windows.notice, host) {
    Subscribe();
    forms.mdiMain.MFileExit.click.Connect([this] { ExitAsAsked(); });
    forms.mdiMain.closeRequest.Connect([this] { ExitAsAsked(); });
}

// The trend has the readings before its window shows them. The recorder comes after the windows:
// its line is the end of a pass. The recovery comes last, after the windows have shown the error
// that it acts on.
void Kelvra::Subscribe() {
    transfer.SetPace(cycle);
    windows.edits.onEdit = [this] { store.NoteEdit(host.clock.Monotonic()); };
    news.measurement.Add(trendCollector);
    news.pass.Add(trendCollector);
    news.slot.Add(trendCollector);
    windows.limits.load = [this](const std::string& key) { return limitsStore.Read(key); };
    windows.limits.save = [this](const std::string& key, const ui::LevelLimits& before,
                                 const ui::LevelLimits& limits) {
        return limitsStore.Save(key, before, limits);
    };
    windows.Subscribe(news, sessionNews);
    news.measurement.Add(recorder);
    news.pass.Add(recorder);
    news.slot.Add(recorder);
    sessionNews.notices.Add(recovery);
    sessionNews.marks.Add(recovery);
}

}  // namespace kelvra::app
