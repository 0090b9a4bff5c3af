// SPDX-License-Identifier: GPL-3.0-or-later
// Where the help about a topic is: in the compiled help file beside the program, or a page of the
// guide. The front end opens it.
#pragma once

#include "controls/control.h"
#include "platform/host.h"

namespace kelvra::ui {

// Topic 0 is the beginning.
void OpenHelp(platform::Host& host, int topic);

// F1 in a control that has a topic opens it: this one and all those in it.
void ConnectHelp(controls::Control& control, platform::Host& host);

}  // namespace kelvra::ui
