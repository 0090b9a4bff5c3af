// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps Stop within reach while one driver call after the other is made: lets events run when none
// have run for some time. Reading the clock costs more than a fast driver's call, so after fast
// calls it is read only now and then.
#pragma once

#include "platform/host.h"

namespace kelvra::measure {

class EventRounds {
public:
    explicit EventRounds(platform::Host& host) : host_(host) {}

    // Events have just run, or are about to.
    void Restart(platform::Duration now) { lastRound_ = now; }

    // A driver call has been made. Handlers may have run when it returns.
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
