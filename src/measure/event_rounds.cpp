// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/event_rounds.h"

#include <chrono>

namespace kelvra::measure {

using std::chrono::milliseconds;

namespace {

constexpr auto LongestWithoutEvents = milliseconds(400);
// This many calls pass between two looks at the clock while less than FastCalls passes.
constexpr int CallsOfALook = 8;
constexpr auto FastCalls = milliseconds(1);

}  // namespace

// Number of calls until the next look.
int EventRounds::Look() {
    platform::Duration now = host_.clock.Monotonic();
    const bool fast = now - lastLook_ <= FastCalls;
    if (now - lastRound_ > LongestWithoutEvents) {
        host_.events.DoEvents();
        now = host_.clock.Monotonic();
        lastRound_ = now;
    }
    lastLook_ = now;
    return fast ? CallsOfALook : 1;
}

}  // namespace kelvra::measure
