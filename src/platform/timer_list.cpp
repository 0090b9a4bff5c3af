// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/timer_list.h"

#include <algorithm>

namespace kelvra::platform {

Events::TimerId TimerList::Start(Duration now, Duration interval, std::function<void()> handler) {
    timers_.push_back({++lastId_, interval, now + interval, false, std::move(handler)});
    return lastId_;
}

void TimerList::Stop(Events::TimerId timer) {
    std::erase_if(timers_, [&](const Timer& t) { return t.id == timer; });
}

TimerList::Timer* TimerList::Find(Events::TimerId timer) {
    const auto found =
        std::find_if(timers_.begin(), timers_.end(), [&](const Timer& t) { return t.id == timer; });
    return found == timers_.end() ? nullptr : &*found;
}

void TimerList::RunDue(Duration now) {
    std::vector<std::pair<Duration, Events::TimerId>> due;
    for (const Timer& timer : timers_)
        if (!timer.running && timer.due <= now) due.emplace_back(timer.due, timer.id);
    std::sort(due.begin(), due.end());
    for (const auto& [when, id] : due) {
        Timer* timer = Find(id);
        // An earlier handler may have stopped it, or let it run in a nested round.
        if (timer == nullptr || timer->running || timer->due > now) continue;
        timer->running = true;
        // A copy: the handler may stop its own timer, or start others and move the list.
        const auto handler = timer->handler;
        handler();
        timer = Find(id);
        if (timer == nullptr) continue;
        timer->running = false;
        timer->due += timer->interval;
        if (timer->due <= now) timer->due = now + timer->interval;
    }
}

std::optional<Duration> TimerList::NextDue() const {
    std::optional<Duration> next;
    for (const Timer& timer : timers_)
        if (!timer.running && (!next || timer.due < *next)) next = timer.due;
    return next;
}

}  // namespace kelvra::platform
