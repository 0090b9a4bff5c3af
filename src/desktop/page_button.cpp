// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/page_button.h"

#include <QPainter>
#include <QStyle>

namespace kelvra::desktop {

namespace {
constexpr int Bar = 3;  // logical pixels
constexpr int Side = 6;
}  // namespace

PageButton::PageButton() {
    setCheckable(true);
    setAutoExclusive(true);
    const int width = fontMetrics().horizontalAdvance('0');
    setMinimumHeight(sizeHint().height() + Bar + width / 2);
}

void PageButton::paintEvent(QPaintEvent* event) {
    QPushButton::paintEvent(event);
    if (!isChecked()) return;
    QPainter painter(this);
    painter.fillRect(QRect(Side, height() - Bar - 2, width() - 2 * Side, Bar),
                     palette().color(isEnabled() ? QPalette::Highlight : QPalette::Mid));
}

}  // namespace kelvra::desktop
