// SPDX-License-Identifier: GPL-3.0-or-later
// Repeating timers over a monotonic clock, for event loops without a toolkit of their own.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/events.h"

namespace kelvra::platform {

class TimerList {
public:
    Events::TimerId Start(Duration now, Duration interval, std::function<void()> handler);
    void Stop(Events::TimerId timer);
    void Clear() { timers_.clear(); }

    // Runs each timer that is due and not already running, once, in the order of their due times.
    // Missed ticks are dropped.
    void RunDue(Duration now);

    // When the next timer is due; nothing without timers. A running timer counts from its end.
    std::optional<Duration> NextDue() const;

private:
    struct Timer {
        Events::TimerId id = 0;
        Duration interval{};
        Duration due{};
        bool running = false;
        std::function<void()> handler;
    };

    Timer* Find(Events::TimerId timer);

    std::vector<Timer> timers_;
    Events::TimerId lastId_ = 0;
};

}  // namespace kelvra::platform
