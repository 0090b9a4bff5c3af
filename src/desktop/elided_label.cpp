// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/elided_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

#include "desktop/common.h"

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

QStringList ElidedLabel::Parts() const {
    const QString line = Line();
    QTextLayout layout(line, font());
    QStringList parts;
    layout.beginLayout();
    for (QTextLine part = layout.createLine(); part.isValid(); part = layout.createLine()) {
        part.setLineWidth(width());
        const bool last = parts.size() + 1 == lines_;
        parts << (last ? fontMetrics().elidedText(line.mid(part.textStart()), Qt::ElideRight,
                                                  width())
                       : line.mid(part.textStart(), part.textLength()));
        if (last) break;
    }
    layout.endLayout();
    return parts;
}

void ElidedLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(rect(), Qt::AlignVCenter | Qt::AlignLeft, Parts().join('\n'));
}

bool ElidedLabel::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || text().isEmpty()) return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent&>(*event).globalPos(), TooltipText(text()), this);
    return true;
}

}  // namespace kelvra::desktop
