// SPDX-License-Identifier: GPL-3.0-or-later
#include "options/version.h"

namespace kelvra::options {

platform::ProgramVersion Version() {
    return {.product = "Kelvra",
            .major = KELVRA_VERSION_MAJOR,
            .minor = KELVRA_VERSION_MINOR,
            .revision = KELVRA_VERSION_REVISION,
            .comments = "Operates several USB power sensors at once",
            .legalNotice = "(C) 2026 The Kelvra developers",
            .addresses = {.homePage = KELVRA_HOME_PAGE,
                          .applicationNotes = KELVRA_APPLICATION_NOTES,
                          .supportTool = KELVRA_SUPPORT_TOOL,
                          .supportMailbox = KELVRA_SUPPORT_MAILBOX}};
}

}  // namespace kelvra::options
