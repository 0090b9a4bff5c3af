// SPDX-License-Identifier: GPL-3.0-or-later
// The compiled help file, which lies beside the program.
#pragma once

#include "platform/host.h"

namespace kelvra::ui {

// Topic 0 is the whole file.
inline void OpenHelp(platform::Host& host, int topic) {
    platform::Computer& computer = host.computer;
    host.dialogs.OpenHelp(computer.Join(computer.ProgramFolder(), "KelvraHelp.chm"), topic);
}

}  // namespace kelvra::ui
