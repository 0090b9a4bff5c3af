// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/link_button.h"

#include <QPainter>
#include <QStyleOptionFocusRect>

namespace kelvra::desktop {

namespace {
constexpr int Rim = 2;  // logical pixels, for the mark of the focus
}  // namespace

LinkButton::LinkButton() {
    QFont underlined = font();
    underlined.setUnderline(true);
    setFont(underlined);
    setCursor(Qt::PointingHandCursor);
    setAutoDefault(true);  // Enter presses it
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize LinkButton::sizeHint() const {
    return fontMetrics().size(Qt::TextShowMnemonic, text()) + QSize(2 * Rim, 2 * Rim);
}

void LinkButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Link));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
    if (!hasFocus()) return;
    QStyleOptionFocusRect option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
}

}  // namespace kelvra::desktop
