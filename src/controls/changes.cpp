// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/changes.h"

#include <utility>

#include "controls/control.h"

namespace kelvra::controls {

void Changes::Add(Control& control) {
    if (control.marked_) return;
    control.marked_ = true;
    changed_.push_back(&control);
    if (changed_.size() == 1 && onFirst) onFirst();
}

std::vector<Control*> Changes::Take() {
    std::vector<Control*> taken = std::exchange(changed_, {});
    for (Control* control : taken) control->marked_ = false;
    return taken;
}

}  // namespace kelvra::controls
