// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/focus_ring.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>

#include "desktop/schemes.h"

namespace kelvra::desktop {

namespace {
constexpr int Width = 2;
constexpr int Gap = 1;
}  // namespace

FocusRing::FocusRing(QWidget* frame) : QWidget(frame) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* focused) { Follow(focused); });
}

void FocusRing::Follow(QWidget* focused) {
    if (followed_) followed_->removeEventFilter(this);
    followed_ = focused != nullptr && parentWidget()->isAncestorOf(focused) ? focused : nullptr;
    if (followed_) followed_->installEventFilter(this);
    Place();
}

bool FocusRing::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) Place();
    return QWidget::eventFilter(object, event);
}

void FocusRing::Place() {
    setVisible(followed_ != nullptr);
    if (!followed_) return;
    constexpr int around = Width + Gap;
    const QPoint corner = followed_->mapTo(parentWidget(), QPoint());
    setGeometry(QRect(corner, followed_->size()).adjusted(-around, -around, around, around));
    raise();
}

void FocusRing::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(QPen(PaintColour(OwnColour::Focus), Width));
    painter.drawRect(rect().adjusted(Width / 2, Width / 2, -Width / 2, -Width / 2));
}

}  // namespace kelvra::desktop
