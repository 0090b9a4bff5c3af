// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/qt_events.h"

#include <QCoreApplication>
#include <QTimer>

namespace kelvra::desktop {

using std::chrono::milliseconds;
using Steady = std::chrono::steady_clock;

namespace {
constexpr auto DeliveryInterval = milliseconds(1);
}  // namespace

QtEvents::~QtEvents() = default;

void QtEvents::DoEvents(milliseconds patience) {
    if (quit_) return;
    if (setClock_ != nullptr) setClock_->Advance(milliseconds(1));
    if (patience <= milliseconds::zero()) {
        if (Steady::now() - lastDelivery_ < DeliveryInterval) return;
        QCoreApplication::processEvents();
    } else {
        QTimer wake;  // ends the wait when nothing else does
        wake.setSingleShot(true);
        wake.start(patience);
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    lastDelivery_ = Steady::now();
}

platform::Events::TimerId QtEvents::StartTimer(milliseconds interval,
                                               std::function<void()> handler) {
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout,
                     [this, running = false, handler = std::move(handler)]() mutable {
                         if (running || quit_) return;
                         running = true;
                         handler();
                         running = false;
                     });
    timer->start(interval);
    timers_.emplace(++lastId_, std::move(timer));
    return lastId_;
}

void QtEvents::StopTimer(TimerId timer) {
    timers_.erase(timer);
}

void QtEvents::Quit() {
    quit_ = true;
    for (const auto& [id, timer] : timers_) timer->stop();
    QCoreApplication::exit();  // not quit, which would first ask the windows, and those ask the
                               // rules
}

}  // namespace kelvra::desktop
