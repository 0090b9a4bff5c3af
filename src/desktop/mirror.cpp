// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/mirror.h"

#include <QCoreApplication>
#include <QEvent>

namespace kelvra::desktop {

namespace {
constexpr auto FrameTime = std::chrono::milliseconds(17);
}  // namespace

Mirror::Mirror(controls::Changes& changes) : changes_(changes) {
    changes_.Take();  // adapters read their controls when they are created
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    connect(&timer_, &QTimer::timeout, [this] { Flush(); });
    changes_.onFirst = [this] {
        if (!timer_.isActive()) timer_.start(FrameTime);
    };
    QCoreApplication::instance()->installEventFilter(this);
}

Mirror::~Mirror() {
    changes_.onFirst = nullptr;
}

void Mirror::Add(const controls::Control& control, std::unique_ptr<Adapter> adapter) {
    adapter->Update();
    adapters_.insert_or_assign(&control, std::move(adapter));
}

// Called before the event is delivered; the timer expires after that.
bool Mirror::eventFilter(QObject* receiver, QEvent* event) {
    const bool acts =
        event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::KeyPress;
    if (acts) timer_.start(std::chrono::milliseconds(0));
    return QObject::eventFilter(receiver, event);
}

// Changes first: an adapter whose window appears adds others.
void Mirror::ShowAll() {
    Flush();
    for (const auto& [control, adapter] : adapters_) adapter->Update();
}

void Mirror::PaintNow() {
    Flush();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::UpdateRequest);
}

void Mirror::Flush() {
    for (controls::Control* control : changes_.Take())
        if (const auto found = adapters_.find(control); found != adapters_.end())
            found->second->Update();
}

}  // namespace kelvra::desktop
