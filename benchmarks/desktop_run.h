// SPDX-License-Identifier: GPL-3.0-or-later
// The whole desktop program in this process, and an application that observes painting.
#pragma once

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <chrono>
#include <functional>
#include <string>

#include "desktop/desktop.h"
#include "options/surroundings.h"
#include "support/temp_folder.h"

namespace kelvra::benchmarks {

class WatchedApplication final : public QApplication {
public:
    using QApplication::QApplication;

    // Called before a widget is painted.
    std::function<void(QObject& widget)> onPaint;
    // Called when the window shows what was painted.
    std::function<void()> onPainted;

    bool notify(QObject* receiver, QEvent* event) override {
        if (event->type() == QEvent::Paint && receiver->isWidgetType()) {
            painted_ = true;
            if (onPaint) onPaint(*receiver);
        }
        const bool round =
            event->type() == QEvent::UpdateRequest || event->type() == QEvent::Expose;
        const bool accepted = QApplication::notify(receiver, event);
        if (round && painted_) {
            painted_ = false;
            if (onPainted) onPainted();
        }
        return accepted;
    }

private:
    bool painted_ = false;
};

// Lets events run.
inline void RunEvents(std::chrono::milliseconds length) {
    QEventLoop loop;
    QTimer::singleShot(length, &loop, &QEventLoop::quit);
    loop.exec();
}

inline app::Kelvra& Started(app::Kelvra& kelvra) {
    kelvra.Start();
    return kelvra;
}

class DesktopRun {
public:
    // Without driver libraries there are simulated sensors, until others are plugged in.
    explicit DesktopRun(const std::string& driverFolder = {})
        : surroundings_({driverFolder.empty() ? folder_.Path() : driverFolder,
                         folder_.Path(),
                         {},
                         1,
                         false,
                         {}},
                        {}),
          host_(surroundings_.HostWith(events_, dialogs_)),
          kelvra(host_),
          desktop(Started(kelvra), events_, dialogs_, folder_.Path()) {}

    template <class Widget>
    Widget& Find(const char* name) {
        return *desktop.Main().Widget().findChild<Widget*>(name);
    }

    // Measures until `ended`, which is called every 5 ms, returns true.
    void Measure(const std::function<bool()>& ended) {
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            if (ended()) kelvra.forms.mdiMain.StopIt.Press();
        });
        look.start(std::chrono::milliseconds(5));
        kelvra.forms.mdiMain.StartIt.Press();
    }

private:
    test::TempFolder folder_;
    options::Surroundings surroundings_;
    desktop::QtEvents events_{surroundings_.Clock(), nullptr};
    desktop::QtDialogs dialogs_;
    platform::Host host_;

public:
    app::Kelvra kelvra;
    desktop::Desktop desktop;
};

}  // namespace kelvra::benchmarks
