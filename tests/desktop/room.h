// SPDX-License-Identifier: GPL-3.0-or-later
// A window of records and the mirror that shows them, for tests of single widgets.
#pragma once

#include "controls/kinds.h"
#include "desktop/mirror.h"

namespace kelvra::desktop {

// Outlives the records and widgets that a test puts into it.
struct Room {
    controls::Changes changes;
    controls::Window window{changes, "W", "", {}};
    Mirror mirror{changes};
};

}  // namespace kelvra::desktop
