// SPDX-License-Identifier: GPL-3.0-or-later
// An adapter mirrors one control record in one widget. Update brings changes of the record to the
// widget; acts of the user on the widget go to the record's act functions. Neither is sent back.
#pragma once

namespace kelvra::desktop {

class Adapter {
public:
    virtual ~Adapter() = default;

    // Brings the widget up to date with the record; raises nothing in the record.
    virtual void Update() = 0;
};

}  // namespace kelvra::desktop
