// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/run_buttons.h"

#include "ui/command_buttons.h"

namespace kelvra::ui {

RunButtons::RunButtons(forms::Forms& forms, measure::Cycle& cycle) : forms_(forms) {
    forms_.mdiMain.StartIt.click.Connect([&cycle] { cycle.Start(); });
    forms_.mdiMain.StopIt.click.Connect([&cycle] { cycle.Stop(); });
}

// In this order: the focus goes from the one to the other.
void RunButtons::Started() {
    forms_.mdiMain.StopIt.enabled = true;
    forms_.mdiMain.StartIt.enabled = false;
}

void RunButtons::Prepared() {
    OfferSensorCommands(forms_.setupForm, false);
}

void RunButtons::Stopped() {
    forms_.mdiMain.StartIt.enabled = true;
    forms_.mdiMain.StopIt.enabled = false;
    OfferSensorCommands(forms_.setupForm, true);
}

}  // namespace kelvra::ui
