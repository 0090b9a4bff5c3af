// SPDX-License-Identifier: GPL-3.0-or-later
// The program's name, version and addresses, from the build.
#pragma once

#include "platform/computer.h"

namespace kelvra::options {

inline const platform::ProgramVersion Version = {
    "Kelvra",
    KELVRA_VERSION_MAJOR,
    KELVRA_VERSION_MINOR,
    KELVRA_VERSION_REVISION,
    "Operates several USB power sensors at once",
    "(C) 2026 The Kelvra developers",
    {KELVRA_HOME_PAGE, KELVRA_APPLICATION_NOTES, KELVRA_SUPPORT_TOOL, KELVRA_SUPPORT_MAILBOX}};

}  // namespace kelvra::options
