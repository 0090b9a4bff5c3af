// SPDX-License-Identifier: GPL-3.0-or-later
// Adapters of windows: the frame of the program, and the windows inside it. A change of the
// record's place moves the window. From the user, the record gets a new size and a request to
// close.
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

    // As the toolkit has written it in an earlier run. The window is shown there instead of at the
    // record's place; the record hears of the size.
    void ShowAsBefore(const QByteArray& geometry);
    // To be kept for the next run: full screen is not.
    QByteArray Geometry() const { return isFullScreen() ? beforeFullScreen_ : saveGeometry(); }
    void ShowFullScreen(bool full);

    using QMainWindow::focusNextPrevChild;  // public, for the Tab key of the windows inside

protected:
    // The record's rule handles the close; the rule ends the program, not the toolkit.
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    controls::Window& window_;
    QByteArray beforeFullScreen_;
};

class FrameWindowAdapter final : public Adapter {
public:
    FrameWindowAdapter(const controls::Window& window, FrameWindow& widget)
        : window_(window), widget_(widget) {}
    void Update() override;

    QByteArray before;  // the geometry of an earlier run; used once

private:
    QRect PlaceOf(const controls::Geometry& place) const;

    const controls::Window& window_;
    FrameWindow& widget_;
    controls::Geometry shown_{};
};

// A window inside the frame, never smaller than its content needs.
class ChildWindow final : public QMdiSubWindow {
public:
    // Adds itself to the area.
    ChildWindow(controls::Window& window, QMdiArea& area);

    const controls::Window& Record() const { return window_; }

    // Goes where the record says, or stays where the user has put it, inside the area.
    void FollowPlace();
    // Limited by the room in the area and by the window's smallest size.
    void ResizeInside(const QSize& wanted);
    // The room in the area from the window's corner on.
    QSize Room() const;
    std::function<void()> onRoom;  // the area's size has changed
    void FillArea(const QSize& most);
    // Sizes and places that the user has given.
    bool SizedByPerson() const { return sizedByPerson_; }
    bool PlacedByPerson() const { return sizedByPerson_ || movedByPerson_; }
    void PlaceAsBefore(const QRect& place);  // by the user in an earlier run

protected:
    // The Tab key goes through the whole frame, in and out of the windows inside it.
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject* object, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    controls::Window& window_;
    QMdiArea& area_;
    bool held_ = false;  // by the user's mouse
    bool sizedByPerson_ = false;
    bool movedByPerson_ = false;
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
