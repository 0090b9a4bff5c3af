// SPDX-License-Identifier: GPL-3.0-or-later
// Everything Kelvra asks of the computer and of the user, in one place. A front end supplies the
// interactive part (Events, Dialogs), platform/posix the rest; tests supply what they want to
// control.
#pragma once

#include "platform/clock.h"
#include "platform/computer.h"
#include "platform/dialogs.h"
#include "platform/events.h"
#include "platform/files.h"
#include "util/random.h"

namespace kelvra::platform {

struct Host {
    Events& events;
    Dialogs& dialogs;
    Clock& clock;
    Files& files;
    Computer& computer;
    util::Random& random;
};

}  // namespace kelvra::platform
