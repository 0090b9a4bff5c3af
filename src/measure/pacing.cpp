// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/pacing.h"

#include <chrono>

namespace kelvra::measure {

using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

constexpr auto Pause = milliseconds(1);

}  // namespace

platform::Duration Pacing::Deadline() const {
    const platform::Duration interval = seconds(state_.recordInterval);
    const platform::Duration own = passBegan_ + interval;
    if (!lastDeadline_) return own;
    const platform::Duration even = *lastDeadline_ + interval;
    return even > host_.clock.Monotonic() ? even : own;
}

void Pacing::WaitForDeadline() {
    if (state_.recordInterval <= 0) {
        lastDeadline_.reset();
        return;
    }
    const platform::Duration deadline = Deadline();
    const bool keepsUp = deadline > host_.clock.Monotonic();
    while (state_.recordInterval > 0 && !state_.Ending()) {
        const platform::Duration left = deadline - host_.clock.Monotonic();
        if (left <= platform::Duration::zero()) break;
        host_.events.DoEvents();
        if (state_.Ending()) return;
        news_.pass.Tell(&PassListener::PassWaits, left);
        host_.clock.Sleep(Pause);
    }
    const bool reached = host_.clock.Monotonic() >= deadline;
    lastDeadline_ = keepsUp && reached ? std::optional(deadline) : std::nullopt;
}

}  // namespace kelvra::measure
