// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/qt_events.h"

#include <QCoreApplication>
#include <QScopedValueRollback>
#include <algorithm>

namespace kelvra::desktop {

using std::chrono::milliseconds;
using Steady = std::chrono::steady_clock;

namespace {
constexpr auto DeliveryInterval = milliseconds(1);
constexpr auto RoundTime = milliseconds(1);  // on Kelvra's own clock
}  // namespace

QtEvents::QtEvents(platform::Clock& clock, platform::SetClock* setClock)
    : clock_(clock), setClock_(setClock) {
    for (QTimer* timer : {&due_, &patience_}) {
        timer->setSingleShot(true);
        timer->setTimerType(Qt::PreciseTimer);
    }
    QObject::connect(&due_, &QTimer::timeout, [this] {
        const auto next = timers_.NextDue();
        if (setClock_ != nullptr && !inRound_ && next) setClock_->AdvanceTo(*next);
        RunTimers();
    });
}

void QtEvents::DoEvents(milliseconds patience) {
    if (quit_) return;
    if (setClock_ != nullptr) {
        setClock_->Advance(RoundTime);
        RunTimers();
    }
    const bool waits = patience > milliseconds::zero();
    if (!waits && Steady::now() - lastDelivery_ < DeliveryInterval) return;
    const QScopedValueRollback round(inRound_, true);
    Deliver(patience);
    lastDelivery_ = Steady::now();
}

void QtEvents::Deliver(milliseconds patience) {
    if (patience <= milliseconds::zero()) {
        QCoreApplication::processEvents();
        return;
    }
    patience_.start(patience);
    while (patience_.isActive() && !quit_)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    patience_.stop();
}

platform::Events::TimerId QtEvents::StartTimer(milliseconds interval,
                                               std::function<void()> handler) {
    const TimerId timer = timers_.Start(clock_.Monotonic(), interval, std::move(handler));
    Arm();
    return timer;
}

void QtEvents::StopTimer(TimerId timer) {
    timers_.Stop(timer);
    Arm();
}

void QtEvents::RunTimers() {
    timers_.RunDue(clock_.Monotonic());
    Arm();
}

void QtEvents::Arm() {
    const auto next = timers_.NextDue();
    if (!next) {
        due_.stop();
        return;
    }
    const platform::Duration left = *next - clock_.Monotonic();
    due_.start(std::chrono::ceil<milliseconds>(std::max(left, platform::Duration::zero())));
}

void QtEvents::Quit() {
    quit_ = true;
    timers_.Clear();
    due_.stop();
    if (onQuit) onQuit();
    QCoreApplication::exit();  // quit() would first ask the windows, and so the rules
}

}  // namespace kelvra::desktop
