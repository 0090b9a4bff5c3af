// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps Stop responsive during a series of driver calls: lets events run if none have run for some
// time. Reading the clock costs more than a fast driver call, so after fast calls it is read only
// now and then.
#pragma once

#include "platform/host.h"

namespace kelvra::measure {

class EventRounds {
public:
    explicit EventRounds(platform::Host& host) : host_(host) {}

    // Events have just run, or will run next.
    void Restart(platform::Duration now) {
        lastRound_ = now;
        LookSoon();
    }

    // Calls of another kind follow: how long they take is not known yet.
    void LookSoon() { callsToLook_ = 1; }

    // Call after each driver call. Handlers may have run when it returns.
    void AfterCall() {
        if (--callsToLook_ <= 0) Look();
    }

private:
    void Look();

    platform::Host& host_;
    platform::Duration lastRound_{};
    platform::Duration lastLook_{};
    int callsToLook_ = 0;
};

}  // namespace kelvra::measure
