// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit's event loop, as the program's Events.
#pragma once

#include <QTimer>
#include <functional>

#include "platform/clock.h"
#include "platform/events.h"
#include "platform/timer_list.h"

namespace kelvra::desktop {

class QtEvents final : public platform::Events {
public:
    // `setClock` is null when the computer's clock is used. Kelvra's own clock moves by 1 ms a
    // round and, outside rounds, on to the timer that is due next. That timer still runs after its
    // real interval, so that the user can follow.
    QtEvents(platform::Clock& clock, platform::SetClock* setClock);

    // Delivers the toolkit's events until the patience is over: painting alone would else make a
    // simulation faster than the screen. A measurement with thousands of passes a second calls this
    // far more often than the user can act, so events are delivered at most once in a millisecond.
    void DoEvents(std::chrono::milliseconds patience) override;
    void Repaint() override {
        if (onRepaint) onRepaint();
    }
    TimerId StartTimer(std::chrono::milliseconds interval, std::function<void()> handler) override;
    void StopTimer(TimerId timer) override;
    void Quit() override;

    // Paints all changes; set by the windows.
    std::function<void()> onRepaint;
    // The program has ended; closes the dialogs that wait for an answer.
    std::function<void()> onQuit;

    bool HasQuit() const { return quit_; }

private:
    void Deliver(std::chrono::milliseconds patience);
    void RunTimers();
    void Arm();

    platform::Clock& clock_;
    platform::SetClock* setClock_;
    platform::TimerList timers_;
    QTimer due_;       // for the timer that is due next
    QTimer patience_;  // ends a wait
    std::chrono::steady_clock::time_point lastDelivery_{};
    bool inRound_ = false;
    bool quit_ = false;
};

}  // namespace kelvra::desktop
