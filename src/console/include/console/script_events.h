// SPDX-License-Identifier: GPL-3.0-or-later
// The event loop of a run without a user: timers, and the script, whose commands are the events.
// Each round takes one command. A clock of its own moves only here and in sleeps: by 1 ms a round,
// and on to the next due time when there is nothing to do.
#pragma once

#include <functional>
#include <optional>

#include "platform/clock.h"
#include "platform/events.h"
#include "platform/timer_list.h"

namespace kelvra::console {

// What the loop needs from the script.
class EventSource {
public:
    virtual ~EventSource() = default;

    // Runs the next command if there is one and the script waits for nothing. Waits up to
    // `patience` for a command; returns whether there was one.
    virtual bool Step(platform::Duration patience) = 0;
    // When the script's current wait for time ends.
    virtual std::optional<platform::Duration> WakesAt() const = 0;
    // The system wants the program to end.
    virtual bool EndRequested() const = 0;
    virtual void End() = 0;
};

class ScriptEvents final : public platform::Events {
public:
    // `setClock` is null when the computer's clock is used.
    ScriptEvents(platform::Clock& clock, platform::SetClock* setClock)
        : clock_(clock), setClock_(setClock) {}

    void Connect(EventSource& source) { source_ = &source; }

    void DoEvents(std::chrono::milliseconds patience) override;
    void Repaint() override {}
    TimerId StartTimer(std::chrono::milliseconds interval, std::function<void()> handler) override;
    void StopTimer(TimerId timer) override { timers_.Stop(timer); }
    void Quit() override {
        quit_ = true;
        timers_.Clear();
    }

    // The main loop: returns after Quit.
    void Run();

private:
    bool Round(platform::Duration patience);
    platform::Duration TimeToNextEvent() const;

    platform::Clock& clock_;
    platform::SetClock* setClock_;
    EventSource* source_ = nullptr;
    platform::TimerList timers_;
    bool quit_ = false;
};

}  // namespace kelvra::console
