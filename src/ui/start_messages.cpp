// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/start_messages.h"

namespace kelvra::ui {

using measure::StartFailure;

// The driver's message about a sensor that could not be opened has been shown before.
void StartMessages::StartFailed(StartFailure why) {
    if (why == StartFailure::NoSensor)
        dialogs_.Message({}, "No operational sensor selected", platform::MessageIcon::Exclamation);
    if (why == StartFailure::OpeningReconnect)
        dialogs_.Message("Initialization Error",
                         "There was an error while initializing the sensors.\r\n"
                         "Please reconnect the sensors and press ok.",
                         platform::MessageIcon::Exclamation);
}

}  // namespace kelvra::ui
