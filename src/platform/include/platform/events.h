// SPDX-License-Identifier: GPL-3.0-or-later
// The event loop as the rules see it: timers, and rounds in which pending events run. A front end
// has the loop itself; TimerList is the part that front ends without a toolkit share.
#pragma once

#include <chrono>
#include <functional>

#include "platform/clock.h"

namespace kelvra::platform {

class Events {
public:
    using TimerId = int;

    virtual ~Events() = default;

    // Lets the events that are pending now run: clicks, timers, whatever. Handlers are entered
    // again from here, so a caller reloads what it holds by slot index afterwards. With nothing
    // pending it may wait up to `patience` for the first event.
    virtual void DoEvents(std::chrono::milliseconds patience = {}) = 0;

    // Shows what has changed, now, without letting any event run. Where nothing is drawn it does
    // nothing.
    virtual void Repaint() = 0;

    // Runs the handler every `interval` from now on, never inside itself.
    virtual TimerId StartTimer(std::chrono::milliseconds interval,
                               std::function<void()> handler) = 0;
    virtual void StopTimer(TimerId timer) = 0;

    // Ends the event loop: no further event is delivered, the loop returns when the handlers that
    // run have returned.
    virtual void Quit() = 0;
};

}  // namespace kelvra::platform
