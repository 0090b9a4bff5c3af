// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/window_adapters.h"

#include <QCloseEvent>
#include <QResizeEvent>
#include <QScreen>
#include <algorithm>

#include "desktop/common.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

// The record hears of sizes that a person has given, not of those that it gave itself.
void ReportSize(controls::Window& window, const QResizeEvent& event) {
    const int width = Twips(event.size().width());
    const int height = Twips(event.size().height());
    const controls::Geometry& known = window.Place.Get();
    const bool same = Pixels(known.width) == event.size().width() &&
                      Pixels(known.height) == event.size().height();
    if (!same && event.oldSize().isValid()) window.PersonResizes(width, height);
}

}  // namespace

void FrameWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    window_.PersonCloses();
}

void FrameWindow::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    if (event->spontaneous()) ReportSize(window_, *event);
}

void FrameWindowAdapter::Update() {
    const QString title = Shown(window_.Caption.Get());
    if (widget_.windowTitle() != title) widget_.setWindowTitle(title);
    const controls::Geometry& place = window_.Place.Get();
    if (shown_ != place) {
        widget_.setGeometry(OnScreen(place));
        shown_ = place;
    }
    widget_.setVisible(window_.Visible);
}

// The rules know a usual screen; on a smaller one the window is moved and cut to what is there.
QRect FrameWindowAdapter::OnScreen(const controls::Geometry& place) const {
    const QRect screen = widget_.screen()->availableGeometry();
    QRect wanted(Pixels(place.left), Pixels(place.top), Pixels(place.width), Pixels(place.height));
    wanted.setSize(wanted.size().boundedTo(screen.size()));
    wanted.moveLeft(std::clamp(wanted.left(), screen.left(), screen.right() + 1 - wanted.width()));
    wanted.moveTop(std::clamp(wanted.top(), screen.top(), screen.bottom() + 1 - wanted.height()));
    return wanted;
}

ChildWindow::ChildWindow(controls::Window& window, QMdiArea& area) : window_(window), area_(area) {
    area.addSubWindow(this);
    setAttribute(Qt::WA_DeleteOnClose, false);
    area.viewport()->installEventFilter(this);
}

void ChildWindow::ResizeInside(const QSize& wanted) {
    if (isMaximized() || isMinimized()) return;
    const QSize room = area_.viewport()->size() - QSize(x(), y());
    resize(wanted.boundedTo(room).expandedTo(minimumSizeHint()));
}

bool ChildWindow::eventFilter(QObject* object, QEvent* event) {
    if (object == area_.viewport() && event->type() == QEvent::Resize && isVisible())
        ResizeInside(size());
    return QMdiSubWindow::eventFilter(object, event);
}

bool ChildWindow::focusNextPrevChild(bool next) {
    auto* frame = dynamic_cast<FrameWindow*>(window());
    return frame != nullptr && frame->focusNextPrevChild(next);
}

void ChildWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    window_.PersonCloses();
}

void ChildWindow::resizeEvent(QResizeEvent* event) {
    QMdiSubWindow::resizeEvent(event);
    // While a person drags an edge, the window holds the mouse.
    if (QWidget::mouseGrabber() == this) ReportSize(window_, *event);
}

void ChildWindowAdapter::Update() {
    const QString title = Shown(window_.Caption.Get());
    if (widget_.windowTitle() != title) widget_.setWindowTitle(title);
    const controls::Geometry& place = window_.Place.Get();
    if (shown_ != place) {
        const QSize wanted(Pixels(place.width), Pixels(place.height));
        widget_.move(Pixels(place.left), Pixels(place.top));
        widget_.resize(wanted.expandedTo(widget_.sizeHint()));
        shown_ = place;
    }
    widget_.setVisible(window_.Visible);
}

}  // namespace kelvra::desktop
