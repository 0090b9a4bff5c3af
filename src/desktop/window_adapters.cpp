// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/window_adapters.h"

#include <QCloseEvent>
#include <QMouseEvent>
#include <QResizeEvent>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "desktop/common.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

QSize SizeOf(const controls::Geometry& place) {
    return {Pixels(place.width), Pixels(place.height)};
}

// The record hears of sizes that the user has given, not of those that it gave itself.
void ReportSize(controls::Window& window, const QResizeEvent& event) {
    if (SizeOf(window.place.Get()) != event.size() && event.oldSize().isValid())
        window.PersonResizes(Twips(event.size().width()), Twips(event.size().height()));
}

bool SameCorner(const controls::Geometry& a, const controls::Geometry& b) {
    return a.left == b.left && a.top == b.top;
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

void FrameWindow::ShowAsBefore(const QByteArray& geometry) {
    if (!geometry.isEmpty() && restoreGeometry(geometry))
        window_.PersonResizes(Twips(width()), Twips(height()));
}

void FrameWindow::ShowFullScreen(bool full) {
    if (full) beforeFullScreen_ = saveGeometry();
    setWindowState(full ? windowState() | Qt::WindowFullScreen
                        : windowState() & ~Qt::WindowFullScreen);
}

void FrameWindowAdapter::Update() {
    const QString title = Shown(window_.caption.Get());
    if (widget_.windowTitle() != title) widget_.setWindowTitle(title);
    const controls::Geometry& place = window_.place.Get();
    // A size that the user has given comes back as the record's, with the corner that it knows.
    if (!SameCorner(shown_, place))
        widget_.setGeometry(PlaceOf(place));
    else if (shown_ != place && widget_.size() != SizeOf(place))
        widget_.resize(PlaceOf(place).size());
    shown_ = place;
    if (!before.isEmpty()) widget_.ShowAsBefore(std::exchange(before, {}));
    widget_.setVisible(window_.visible);
}

// The rules count from the corner of the screen's free part.
QRect FrameWindowAdapter::PlaceOf(const controls::Geometry& place) const {
    const QPoint corner = widget_.screen()->availableGeometry().topLeft();
    const QPoint shift(Pixels(place.left), Pixels(place.top));
    return OnScreen({corner + shift, SizeOf(place)}, *widget_.screen(), widget_);
}

ChildWindow::ChildWindow(controls::Window& window, QMdiArea& area) : window_(window), area_(area) {
    area.addSubWindow(this);
    setAttribute(Qt::WA_DeleteOnClose, false);
    area.viewport()->installEventFilter(this);
}

void ChildWindow::FollowPlace() {
    if (PlacedByPerson()) return ResizeInside(size());
    const controls::Geometry& place = window_.place.Get();
    move(Pixels(place.left), Pixels(place.top));
    ResizeInside(SizeOf(place));
}

QSize ChildWindow::Room() const {
    return area_.viewport()->size() - QSize(x(), y());
}

void ChildWindow::ResizeInside(const QSize& wanted) {
    // Into the area first: a small frame must not hide the window.
    const QSize area = area_.viewport()->size();
    const QSize least = minimumSizeHint();
    const QPoint corner(std::min(x(), area.width() - least.width()),
                        std::min(y(), area.height() - least.height()));
    move(std::max(corner.x(), 0), std::max(corner.y(), 0));
    resize(wanted.boundedTo(Room()).expandedTo(least));
}

bool ChildWindow::eventFilter(QObject* object, QEvent* event) {
    if (object == area_.viewport() && event->type() == QEvent::Resize && onRoom) onRoom();
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

void ChildWindow::FillArea(const QSize& most) {
    setGeometry({{}, area_.viewport()->size().boundedTo(most)});
}

void ChildWindow::PlaceAsBefore(const QRect& place) {
    move(place.topLeft());
    sizedByPerson_ = movedByPerson_ = true;
    window_.PersonResizes(Twips(place.width()), Twips(place.height()));
    ResizeInside(place.size());
}

void ChildWindow::moveEvent(QMoveEvent* event) {
    QMdiSubWindow::moveEvent(event);
    movedByPerson_ = movedByPerson_ || held_;
}

void ChildWindow::mousePressEvent(QMouseEvent* event) {
    held_ = true;
    QMdiSubWindow::mousePressEvent(event);
}

void ChildWindow::mouseReleaseEvent(QMouseEvent* event) {
    held_ = false;
    QMdiSubWindow::mouseReleaseEvent(event);
}

void ChildWindow::resizeEvent(QResizeEvent* event) {
    QMdiSubWindow::resizeEvent(event);
    if (!held_) return;
    sizedByPerson_ = true;
    ReportSize(window_, *event);
}

void ChildWindowAdapter::Update() {
    const QString title = Shown(window_.caption.Get());
    if (widget_.windowTitle() != title) widget_.setWindowTitle(title);
    const controls::Geometry& place = window_.place.Get();
    if (!SameCorner(shown_, place)) widget_.move(Pixels(place.left), Pixels(place.top));
    if (shown_ != place && widget_.size() != SizeOf(place))
        widget_.ResizeInside(SizeOf(place).expandedTo(widget_.sizeHint()));
    shown_ = place;
    widget_.setVisible(window_.visible);
}

}  // namespace kelvra::desktop
