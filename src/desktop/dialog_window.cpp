// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/dialog_window.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>

#include "desktop/common.h"
#include "desktop/icons.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {
constexpr Qt::WindowFlags Plain = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
constexpr Qt::WindowFlags Above = (Plain & ~Qt::WindowType_Mask) | Qt::Dialog;
}  // namespace

ContentScroll::ContentScroll(QWidget* content) {
    setWidget(content);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
}

DialogWindow::DialogWindow(controls::Window& record, QWidget& area, QWidget* content)
    : QWidget(nullptr, Plain), record_(record), area_(area) {
    setWindowIcon(Icon("kelvra"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
}

void DialogWindow::Show(bool visible) {
    if (visible && !placed_) PlaceFirst();
    setVisible(visible);
}

void DialogWindow::Raise() {
    raise();
    activateWindow();
}

// What does not fit on the screen is cut, and gets scroll bars; more than the content is not
// needed.
void DialogWindow::PlaceFirst() {
    placed_ = true;
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const QSize whole = sizeHint();
    setMaximumSize(whole + QSize(bar, 0));
    const QPoint corner =
        area_.mapToGlobal(QPoint(Pixels(record_.place->left), Pixels(record_.place->top)));
    QRect wanted(corner, whole);
    if (before_.isValid()) wanted = QRect(before_.topLeft(), before_.size().boundedTo(whole));
    const QScreen* at = QGuiApplication::screenAt(wanted.center());
    const QScreen& screen = at != nullptr ? *at : *area_.screen();
    QRect place = OnScreen(wanted, screen, *this);
    const bool cut = place.height() < whole.height();
    if (cut && !before_.isValid()) place = OnScreen(place.adjusted(0, 0, bar, 0), screen, *this);
    setGeometry(place);
}

// Window managers keep only dialogs above another window. A window that is there must be shown anew
// for that; it stays where it is.
void DialogWindow::StayOnTop(bool onTop) {
    if (onTop == onTop_) return;
    onTop_ = onTop;
    const bool shown = isVisible();
    const QRect place = geometry();
    if (shown) hide();
    setWindowFlags(onTop ? Above : Plain);
    winId();  // makes the toolkit's own window, which knows what it stays above of
    windowHandle()->setTransientParent(onTop ? area_.window()->windowHandle() : nullptr);
    if (!shown) return;
    show();
    setGeometry(place);
}

void DialogWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    record_.PersonCloses();
}

void DialogWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        record_.PersonCloses();
    else
        QWidget::keyPressEvent(event);
}

void DialogWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (event->spontaneous()) record_.PersonResizes(Twips(width()), Twips(height()));
}

void DialogWindowAdapter::Update() {
    if (window_ == nullptr && !record_.visible) return;
    if (window_ == nullptr) window_ = &make_();
    const QString title = Shown(record_.caption.Get());
    if (window_->windowTitle() != title) window_->setWindowTitle(title);
    window_->setCursor(record_.busy ? Qt::BusyCursor : Qt::ArrowCursor);
    window_->StayOnTop(record_.topMost);
    window_->Show(record_.visible);
    if (presented_ != record_.presented.Get() && record_.visible) window_->Raise();
    presented_ = record_.presented;
}

}  // namespace kelvra::desktop
