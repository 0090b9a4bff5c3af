// SPDX-License-Identifier: GPL-3.0-or-later
// Which controls have changed since a front end last looked. A front end that paints drains the
// list at its own pace; one that doesn't never looks, and the list stays as short as there are
// controls.
#pragma once

#include <functional>
#include <vector>

namespace kelvra::controls {

class Control;

class Changes {
public:
    // The control once, however often it changes before the next Take.
    void Add(Control& control);

    // The changed controls in the order of their first change; the list is empty afterwards.
    std::vector<Control*> Take();

    // Called when the list stops being empty, so that a painter can sleep until then.
    std::function<void()> onFirst;

private:
    std::vector<Control*> changed_;
};

}  // namespace kelvra::controls
