// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit's event loop behind the program's interface.
#pragma once

#include <QObject>
#include <map>
#include <memory>

#include "platform/clock.h"
#include "platform/events.h"

class QTimer;

namespace kelvra::desktop {

class QtEvents final : public platform::Events {
public:
    // With a clock of the program's own (null without), each round counts 1 ms on it.
    explicit QtEvents(platform::SetClock* setClock) : setClock_(setClock) {}
    ~QtEvents() override;

    // Delivers the toolkit's events. A measurement that runs thousands of passes a second asks far
    // more often than a person can act, so events are delivered at most once in a millisecond.
    void DoEvents(std::chrono::milliseconds patience) override;
    TimerId StartTimer(std::chrono::milliseconds interval, std::function<void()> handler) override;
    void StopTimer(TimerId timer) override;
    void Quit() override;

    bool HasQuit() const { return quit_; }

private:
    platform::SetClock* setClock_;
    std::map<TimerId, std::unique_ptr<QTimer>> timers_;
    TimerId lastId_ = 0;
    std::chrono::steady_clock::time_point lastDelivery_{};
    bool quit_ = false;
};

}  // namespace kelvra::desktop
