// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit's event loop behind the program's interface.
#pragma once

#include <QTimer>
#include <functional>

#include "platform/clock.h"
#include "platform/events.h"
#include "platform/timer_list.h"

namespace kelvra::desktop {

class QtEvents final : public platform::Events {
public:
    // `setClock` is null when the computer's clock is used. A clock of the program's own moves 1 ms
    // a round and, outside rounds, on to the timer that is due next; that timer comes after as much
    // of a person's time, who would see nothing otherwise.
    QtEvents(platform::Clock& clock, platform::SetClock* setClock);

    // Delivers the toolkit's events. A measurement that runs thousands of passes a second asks far
    // more often than a person can act, so events are delivered at most once in a millisecond.
    void DoEvents(std::chrono::milliseconds patience) override;
    void Repaint() override {
        if (onRepaint) onRepaint();
    }
    TimerId StartTimer(std::chrono::milliseconds interval, std::function<void()> handler) override;
    void StopTimer(TimerId timer) override;
    void Quit() override;

    // Paints what has changed; the windows provide it.
    std::function<void()> onRepaint;
    // The program has ended; what still waits for a person goes.
    std::function<void()> onQuit;

    bool HasQuit() const { return quit_; }

private:
    void Deliver(std::chrono::milliseconds patience);
    void RunTimers();
    void Arm();

    platform::Clock& clock_;
    platform::SetClock* setClock_;
    platform::TimerList timers_;
    QTimer due_;       // for the next of the timers
    QTimer patience_;  // ends a wait when nothing else does
    std::chrono::steady_clock::time_point lastDelivery_{};
    bool inRound_ = false;
    bool quit_ = false;
};

}  // namespace kelvra::desktop
