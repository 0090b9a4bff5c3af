// SPDX-License-Identifier: GPL-3.0-or-later
// The setup dialog: a header with sensor, mode and the input-error strip, and five pages below it.
// Filling, storing and enabling are done by rules elsewhere; a close only hides the dialog.
#pragma once

#include "forms/setup_pages.h"

namespace kelvra::forms {

struct SetupForm : Window,
                   SetupSizes,
                   SetupHeader,
                   GeneralPage,
                   ModePage,
                   TriggerPage,
                   CorrectionPage,
                   AdvancedPage {
    explicit SetupForm(controls::Changes& changes)
        : Window(changes, "SetupForm", "Settings",
                 {60, 60, HeaderWidth + 100, HeaderHeight + PageHeight}),
          SetupHeader(static_cast<Window&>(*this)),
          GeneralPage(static_cast<Window&>(*this)),
          ModePage(static_cast<Window&>(*this)),
          TriggerPage(static_cast<Window&>(*this)),
          CorrectionPage(static_cast<Window&>(*this)),
          AdvancedPage(static_cast<Window&>(*this)) {}
};

}  // namespace kelvra::forms
