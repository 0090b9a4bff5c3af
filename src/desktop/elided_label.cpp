// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

namespace kelvra::desktop {

namespace {
constexpr int LeastCharacters = 12;
}  // namespace

ElidedLabel::ElidedLabel(int lines) : lines_(lines) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ElidedLabel::sizeHint() const {
    return {fontMetrics().horizontalAdvance(Line()), lines_ * fontMetrics().lineSpacing()};
}

QSize ElidedLabel::minimumSizeHint() const {
    return {LeastCharacters * fontMetrics().averageCharWidth(), sizeHint().height()};
}

QString ElidedLabel::Line() const {
    return text().simplified();
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    const QString line = Line();
    QTextLayout layout(line, font());
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    layout.beginLayout();
    for (int number = 1; number <= lines_; ++number) {
        QTextLine part = layout.createLine();
        if (!part.isValid()) break;
        part.setLineWidth(width());
        const bool last = number == lines_;
        const QString shown =
            last ? fontMetrics().elidedText(line.mid(part.textStart()), Qt::ElideRight, width())
                 : line.mid(part.textStart(), part.textLength());
        painter.drawText(0, (number - 1) * fontMetrics().lineSpacing() + fontMetrics().ascent(),
                         shown);
    }
    layout.endLayout();
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || text().isEmpty()) return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent&>(*event).globalPos(),
                       Qt::convertFromPlainText(text()), this);
    return true;
}

}  // namespace kelvra::desktop
