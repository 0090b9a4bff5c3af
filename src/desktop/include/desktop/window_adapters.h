// SPDX-License-Identifier: GPL-3.0-or-later
// Adapters of windows: the frame of the program, and the windows inside it. A record's place moves
// the window; of what a person does, a new size and a wish to close go back.
#pragma once

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <functional>

#include "controls/kinds.h"
#include "desktop/adapter.h"

namespace kelvra::desktop {

// The program's frame.
class FrameWindow final : public QMainWindow {
public:
    explicit FrameWindow(controls::Window& window) : window_(window) {}

    using QMainWindow::focusNextPrevChild;  // the windows inside pass the Tab key on

protected:
    // The close is the record's rule; the program ends by it, not by the toolkit.
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    controls::Window& window_;
};

class FrameWindowAdapter final : public Adapter {
public:
    FrameWindowAdapter(const controls::Window& window, FrameWindow& widget)
        : window_(window), widget_(widget) {}
    void Update() override;

private:
    QRect OnScreen(const controls::Geometry& place) const;

    const controls::Window& window_;
    FrameWindow& widget_;
    controls::Geometry shown_{};
};

// A window inside the frame. It is never smaller than what is in it needs.
class ChildWindow final : public QMdiSubWindow {
public:
    // Puts itself into the area.
    ChildWindow(controls::Window& window, QMdiArea& area);

    // As far as the area has room, and never smaller than it can be.
    void ResizeInside(const QSize& wanted);
    // What the area has for it, from its corner on.
    QSize Room() const;
    std::function<void()> onRoom;  // the area has another size
    bool SizedByPerson() const { return sizedByPerson_; }

protected:
    // The Tab key walks through the whole frame, in and out of the windows inside it.
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    controls::Window& window_;
    QMdiArea& area_;
    bool held_ = false;  // by a person's mouse
    bool sizedByPerson_ = false;
};

class ChildWindowAdapter final : public Adapter {
public:
    ChildWindowAdapter(const controls::Window& window, ChildWindow& widget)
        : window_(window), widget_(widget) {}
    void Update() override;

private:
    const controls::Window& window_;
    ChildWindow& widget_;
    controls::Geometry shown_{};
};

}  // namespace kelvra::desktop
