// SPDX-License-Identifier: GPL-3.0-or-later
// The whole desktop program, started over two simulated sensors: its driver folder is empty, its
// data folder a test's own. A person who acts while a handler runs is a timer that looks.
#pragma once

#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>
#include <functional>

#include "desktop/desktop.h"
#include "options/surroundings.h"

namespace kelvra::desktop {

// Acts once, as soon as the condition holds; looks while the object is there.
inline void When(QObject& alive, const std::function<bool()>& condition,
                 const std::function<void()>& act) {
    auto* look = new QTimer(&alive);
    QObject::connect(look, &QTimer::timeout, [=] {
        if (!condition()) return;
        look->stop();
        act();
    });
    look->start(5);
}

inline void ClickCell(QTableWidget& table, int row, int column, Qt::KeyboardModifiers keys = {}) {
    const QPoint middle = table.visualRect(table.model()->index(row, column)).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, keys, middle);
}

inline app::Kelvra& Started(app::Kelvra& kelvra) {
    kelvra.Start();
    return kelvra;
}

class RunningDesktop {
public:
    RunningDesktop() : RunningDesktop(std::make_unique<QTemporaryDir>()) {}
    explicit RunningDesktop(const QTemporaryDir& data)
        : surroundings_(
              {drivers_.path().toStdString(), data.path().toStdString(), {}, 1, false, {}}, {}),
          host_(surroundings_.HostWith(events, dialogs_)),
          kelvra(host_),
          desktop(Started(kelvra), events, dialogs_, data.path().toStdString()) {
        QApplication::setActiveWindow(&Main());
        QCoreApplication::processEvents();
    }

    FrameWindow& Main() { return desktop.Main().Widget(); }
    template <class Widget>
    Widget& Find(const char* name) {
        return *Main().findChild<Widget*>(name);
    }
    GridWidget& Results() { return Find<GridWidget>("ResultGrid"); }
    // Once it has been shown.
    QWidget& SetupDialog() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->windowTitle() == "Settings") return *window;
        qFatal("There is no setup dialog.");
    }
    QPushButton& Start() { return Find<QPushButton>("StartIt"); }
    void Click(const char* button) {
        QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton);
    }

private:
    explicit RunningDesktop(std::unique_ptr<QTemporaryDir> data) : RunningDesktop(*data) {
        ownData_ = std::move(data);
    }

    std::unique_ptr<QTemporaryDir> ownData_;  // of a test with one run
    QTemporaryDir drivers_;
    options::Surroundings surroundings_;
    QtDialogs dialogs_;

public:
    QtEvents events{surroundings_.Clock(), nullptr};

private:
    platform::Host host_;

public:
    app::Kelvra kelvra;
    Desktop desktop;
};

}  // namespace kelvra::desktop
