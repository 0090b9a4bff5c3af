// SPDX-License-Identifier: GPL-3.0-or-later
// The event loop as the rules see it: timers, and rounds in which pending events run. The loop
// itself belongs to the front end; TimerList is for front ends without a toolkit.
#pragma once

#include <chrono>
#include <functional>

#include "platform/clock.h"

namespace kelvra::platform {

class Events {
public:
    using TimerId = int;

    virtual ~Events() = default;

    // Lets pending events run: clicks, timers and so on. Handlers may be entered again from here,
    // so afterwards the caller reloads entries by slot index. With nothing pending it may wait up
    // to `patience` for the first event.
    virtual void DoEvents(std::chrono::milliseconds patience = {}) = 0;

    // Shows all changes now, without letting any event run. Does nothing where nothing is drawn.
    virtual void Repaint() = 0;

    // Runs the handler every `interval` from now on, never inside itself.
    virtual TimerId StartTimer(std::chrono::milliseconds interval,
                               std::function<void()> handler) = 0;
    virtual void StopTimer(TimerId timer) = 0;

    // Ends the event loop: no further event is delivered, and the loop returns once the running
    // handlers have returned.
    virtual void Quit() = 0;
};

}  // namespace kelvra::platform
