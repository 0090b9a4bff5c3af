// SPDX-License-Identifier: GPL-3.0-or-later
// A window beside the program's frame: not modal, never larger than the screen. A part of its
// content should be able to scroll where all of it does not fit. Its first place is the record's;
// after that, it is the user's.
#pragma once

#include <QScrollArea>
#include <QWidget>
#include <functional>

#include "controls/kinds.h"
#include "desktop/adapter.h"

namespace kelvra::desktop {

// Scroll bars around a part of a window that wants to be seen whole.
class ContentScroll final : public QScrollArea {
public:
    explicit ContentScroll(QWidget* content);
    QSize sizeHint() const override { return widget()->sizeHint(); }
};

class DialogWindow final : public QWidget {
public:
    // The record's place counts from the corner of `area`. The content becomes the window's.
    DialogWindow(controls::Window& record, QWidget& area, QWidget* content);

    // Shows the window, or hides it.
    void Show(bool visible);
    // Above the frame, whichever of the two is in use, or not.
    void StayOnTop(bool onTop);
    // In front of other windows, with the keyboard.
    void Raise();

    // The place for the next run, and the one of an earlier run.
    QRect Place() const { return geometry(); }
    void ShowAsBefore(const QRect& place) { before_ = place; }
    const controls::Window& Record() const { return record_; }

protected:
    void closeEvent(QCloseEvent* event) override;  // the record's rule decides
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void PlaceFirst();

    controls::Window& record_;
    QWidget& area_;
    QRect before_;
    bool placed_ = false;
    bool onTop_ = false;
};

// Has the window made when the record is first visible.
class DialogWindowAdapter final : public Adapter {
public:
    DialogWindowAdapter(const controls::Window& record, std::function<DialogWindow&()> make)
        : record_(record), make_(std::move(make)) {}
    void Update() override;

private:
    const controls::Window& record_;
    std::function<DialogWindow&()> make_;
    DialogWindow* window_ = nullptr;
    int presented_ = 0;  // as the window has seen it
};

}  // namespace kelvra::desktop
