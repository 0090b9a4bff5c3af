// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/script_events.h"

#include <algorithm>

namespace kelvra::console {

using platform::Duration;
using std::chrono::milliseconds;

namespace {

// The duration of a round on a clock of its own.
constexpr auto RoundTime = milliseconds(1);
// How long the idle loop sleeps when there is no timer.
constexpr Duration LongSleep = std::chrono::hours(1);

}  // namespace

platform::Events::TimerId ScriptEvents::StartTimer(milliseconds interval,
                                                   std::function<void()> handler) {
    return timers_.Start(clock_.Monotonic(), interval, std::move(handler));
}

void ScriptEvents::DoEvents(milliseconds patience) {
    if (quit_) return;
    if (setClock_ != nullptr) {
        setClock_->Advance(RoundTime);
        Round(Duration::zero());
    } else {
        Round(patience);
    }
}

bool ScriptEvents::Round(Duration patience) {
    if (source_->EndRequested()) {
        source_->End();
        return true;
    }
    timers_.RunDue(clock_.Monotonic());
    if (quit_) return true;
    if (patience > Duration::zero()) patience = std::min(patience, TimeToNextEvent());
    return source_->Step(patience);
}

Duration ScriptEvents::TimeToNextEvent() const {
    const Duration now = clock_.Monotonic();
    Duration left = LongSleep;
    for (const auto& due : {timers_.NextDue(), source_->WakesAt()})
        if (due) left = std::min(left, std::max(*due - now, Duration::zero()));
    return left;
}

void ScriptEvents::Run() {
    while (!quit_) {
        const Duration patience = setClock_ != nullptr ? Duration::zero() : LongSleep;
        if (Round(patience) || quit_) continue;
        if (setClock_ != nullptr) setClock_->Advance(TimeToNextEvent());
    }
}

}  // namespace kelvra::console
