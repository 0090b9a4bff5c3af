// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/connection_label.h"

#include <cstdint>

#include "util/number_text.h"

namespace kelvra::ui {

void ShowConnected(forms::MDIMain& window, int sensors) {
    controls::Label& label = window.ConSensors;
    if (sensors == 0) {
        label.caption = "Simulation Mode";
        label.fore = controls::Red;
        return;
    }
    label.caption = util::TrimmedNumberText(std::int64_t{sensors}) + " sensor" +
                    (sensors > 1 ? "s" : "") + " connected";
    label.fore = controls::Green;
}

}  // namespace kelvra::ui
