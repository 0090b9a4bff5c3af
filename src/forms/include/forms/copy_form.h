// SPDX-License-Identifier: GPL-3.0-or-later
// The window that copies settings: the other sensors, a row for each, and which of them get the
// current sensor's settings. Its rules fill it.
#pragma once

#include "forms/kinds.h"

namespace kelvra::forms {

struct CopyForm : Window {
    explicit CopyForm(controls::Changes& changes)
        : Window(changes, "CopyForm", "Copy settings", {3000, 1800, 6900, 4500}) {
        topMost = true;
        lblCopyFrom.access.explanation = "Whose settings are copied.";
    }

    Label lblCopyFrom{*this, "lblCopyFrom"};
    Grid CopyTargets{*this,
                     "CopyTargets",
                     1,
                     4,
                     {.name = "Other sensors",
                      .explanation = "A click on a row marks the sensor to get the settings, or "
                                     "not. The last column says why a sensor can't get them."}};
    Button cmdCopyAll{*this,
                      "cmdCopyAll",
                      "All",
                      "",
                      {.mnemonic = 'A', .explanation = "Marks all sensors that can be marked."}};
    Button cmdCopy{*this,
                   "cmdCopy",
                   "Copy",
                   "",
                   {.mnemonic = 'C', .explanation = "Gives the settings to the marked sensors."}};
    Button cmdCopyCancel{*this,
                         "cmdCopyCancel",
                         "Cancel",
                         "",
                         {.explanation = "Closes the window and copies nothing."}};
};

}  // namespace kelvra::forms
