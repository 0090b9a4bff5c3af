// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps Stop responsive during a series of driver calls: lets events run if none have run for some
// time. Reading the clock costs more than a fast driver call, so while calls of a kind are fast it
// is read only after several of them.
#pragma once

#include <array>

#include "platform/host.h"

namespace kelvra::measure {

enum class CallKind { Setting, Polling, Fetching };

class EventRounds {
public:
    explicit EventRounds(platform::Host& host) : host_(host) {}

    // Events have just run, or will run next.
    void Restart(platform::Duration now) { lastRound_ = now; }

    // Call after each driver call. Handlers may have run when it returns.
    void AfterCall(CallKind kind) {
        int& calls = callsToLook_[static_cast<std::size_t>(kind)];
        if (--calls <= 0) calls = Look();
    }

private:
    int Look();

    platform::Host& host_;
    platform::Duration lastRound_{};
    platform::Duration lastLook_{};
    std::array<int, 3> callsToLook_{};  // by kind
};

}  // namespace kelvra::measure
