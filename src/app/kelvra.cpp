// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/kelvra.h"

#include "measure/notice.h"

namespace kelvra::app {

Kelvra::Kelvra(platform::Host& hostToUse)
    : host(hostToUse),
      log(host.files, host.clock, host.computer.Numbers()),
      catalogue(library.deviceList),
      errorStrip(forms, table, session, host.dialogs),
      driverSession(session, library.instrument, log, table, host.clock, errorStrip),
      selection(forms, table),
      results(forms, table, selection),
      transferEvents_(results, errorStrip),
      transfer(driverSession, table, errorStrip, transferEvents_),
      readings(driverSession, table, results, host),
      calcGrid(forms.mdiMain, table, host),
      store(host.files, log, forms.mdiMain),
      mainWindow(forms, state, host),
      cycle({forms, table, state, host, driverSession, transfer,
             [this](const std::string& text) { ShowDelay(text); }, selection, results, readings,
             calcGrid, mainWindow}),
      discovery({forms, table, catalogue, session, state, results, selection, errorStrip, store}),
      sensorName_(forms, table, host, results, selection),
      settingsCommands_(forms, table, host) {
    errorStrip.Connect({driverSession, transfer, cycle, state, host});
    forms.mdiMain.MFileExit.click.Connect([this] { Exit(); });
    forms.mdiMain.closeRequest.Connect([this] { Exit(); });
}

// An error stays to be read.
void Kelvra::ShowDelay(const std::string& text) {
    if (!table.simulationMode && !session.errorShown) measure::ShowNotice(forms.mdiMain, text);
}

void Kelvra::TransferEvents::TransferBegins(int slot) {
    strip_.TransferBegins();
    results_.ShowState(slot, "CONF", controls::Yellow);
}

void Kelvra::TransferEvents::TransferEnds(int slot) {
    results_.ShowState(slot, "", controls::White);
    strip_.RecoverAfterTransfer(slot);
}

}  // namespace kelvra::app
