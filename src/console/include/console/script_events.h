// SPDX-License-Identifier: GPL-3.0-or-later
// The event loop of a run without a person: timers, and the script, whose commands are the events.
// One command is taken in a round. With a clock of its own, time moves only here and in sleeps: 1
// ms a round, and on to what is due next when nothing is.
#pragma once

#include <functional>
#include <optional>

#include "platform/clock.h"
#include "platform/events.h"
#include "platform/timer_list.h"

namespace kelvra::console {

// What the loop asks of the script.
class EventSource {
public:
    virtual ~EventSource() = default;

    // Takes the next command and carries it out, if there is one and nothing is waited for. With
    // patience it waits that long for the command to come; returns whether there was one.
    virtual bool Step(platform::Duration patience) = 0;
    // When a wait for time that is under way ends.
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
