// SPDX-License-Identifier: GPL-3.0-or-later
#include "measure/event_rounds.h"

#include <chrono>

namespace kelvra::measure {

using std::chrono::milliseconds;

namespace {

constexpr auto LongestWithoutEvents = milliseconds(400);
// This many calls count as fast if they took no longer than FastCalls together.
constexpr int CallsOfALook = 8;
constexpr auto FastCalls = milliseconds(1);

}  // namespace

void EventRounds::Look() {
    platform::Duration now = host_.clock.Monotonic();
    callsToLook_ = now - lastLook_ <= FastCalls ? CallsOfALook : 1;
    if (now - lastRound_ > LongestWithoutEvents) {
        host_.events.DoEvents();
        now = host_.clock.Monotonic();
        lastRound_ = now;
    }
    lastLook_ = now;
}

}  // namespace kelvra::measure
