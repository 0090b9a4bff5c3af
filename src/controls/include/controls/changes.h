// SPDX-License-Identifier: GPL-3.0-or-later
// Which controls have changed since a front end last looked. A front end that paints takes the list
// at its own pace. One that doesn't never takes it; the list holds each control only once.
#pragma once

#include <functional>
#include <vector>

namespace kelvra::controls {

class Control;

class Changes {
public:
    // Adds the control, once before the next Take however often it changes.
    void Add(Control& control);

    // The changed controls in the order of their first change; the list is empty afterwards.
    std::vector<Control*> Take();

    // Called when the list stops being empty, so that the painter can sleep until then.
    std::function<void()> onFirst;

private:
    std::vector<Control*> changed_;
};

}  // namespace kelvra::controls
