// SPDX-License-Identifier: GPL-3.0-or-later
// An adapter mirrors one control record in one widget: the record's changes reach the widget by
// Update, a person's acts on the widget reach the record's act functions. Neither comes back.
#pragma once

namespace kelvra::desktop {

class Adapter {
public:
    virtual ~Adapter() = default;

    // Brings the widget up to date with the record; raises nothing in the record.
    virtual void Update() = 0;
};

}  // namespace kelvra::desktop
