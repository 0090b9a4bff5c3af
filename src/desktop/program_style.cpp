// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/program_style.h"

#include <QApplication>
#include <QPainter>

#include "desktop/schemes.h"

namespace kelvra::desktop {

namespace {

constexpr int ChildFrame = 4;  // logical pixels; wide enough to drag
constexpr int SliderGap = 2;
constexpr int CrossArm = 4;
constexpr int Rounding = 2;
constexpr int TitleGap = 3;  // between a group's title and its frame

bool IsDark(const QPalette& palette) {
    return qGray(palette.color(QPalette::Window).rgb()) < 128;
}

// Over what the toolkit has drawn, whose outlines are faint. What has the focus keeps its own.
void DrawOutline(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter) {
    const bool box = element == QStyle::PE_PanelLineEdit || element == QStyle::PE_IndicatorCheckBox;
    const bool mark = element == QStyle::PE_IndicatorRadioButton;
    const bool group = element == QStyle::PE_FrameGroupBox;
    const bool focused = (option.state & QStyle::State_HasFocus) != 0;
    if ((!box && !mark && !group) || focused) return;
    const bool enabled = (option.state & QStyle::State_Enabled) != 0;
    QColor colour = PaintColour(OwnColour::Outline);
    if (group || !enabled) colour.setAlphaF(0.5F);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colour);
    painter.setBrush(Qt::NoBrush);
    const int title = group ? option.fontMetrics.height() + TitleGap : 0;
    const QRectF rim = QRectF(option.rect).adjusted(0.5, title + 0.5, -0.5, -0.5);
    if (mark)
        painter.drawEllipse(rim);
    else
        painter.drawRoundedRect(rim, Rounding, Rounding);
    painter.restore();
}

// A cross in the painter's colour, on a ground while the mouse is on it.
void DrawClose(const QRect& place, bool active, QPainter& painter) {
    if (active) painter.fillRect(place, QApplication::palette().color(QPalette::Mid));
    const QRectF cross = QRectF(place.center() + QPointF(0.5, 0.5), QSizeF()) +
                         QMarginsF(CrossArm, CrossArm, CrossArm, CrossArm);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(painter.pen().color(), 1.5));
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
    painter.restore();
}

}  // namespace

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    if (const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
        control == CC_TitleBar && bar != nullptr)
        return DrawTitle(*bar, *painter);
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        control == CC_ScrollBar && slider != nullptr)
        return DrawScrollBar(*slider, *painter, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

// The corner of a table: its headings paint themselves.
void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    if (element == CE_Header)
        painter->fillRect(option->rect, option->palette.color(QPalette::Button));
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    if (element != PE_FrameWindow) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return DrawOutline(element, *option, *painter);
    }
    const QPalette palette = QApplication::palette();
    painter->fillRect(option->rect, palette.color(QPalette::Window));
    painter->setPen(palette.color(QPalette::Mid));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
    if (metric == PM_MdiSubWindowFrameWidth) return ChildFrame;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

// The sign of the window's menu, the title, and the sign that closes the window.
void ProgramStyle::DrawTitle(const QStyleOptionTitleBar& bar, QPainter& painter) const {
    const QPalette palette = QApplication::palette();
    painter.fillRect(bar.rect, palette.color(QPalette::Window));
    painter.setPen(palette.color(QPalette::Mid));
    painter.drawLine(bar.rect.topLeft(), bar.rect.topRight());
    painter.drawLine(bar.rect.topLeft(), bar.rect.bottomLeft());
    painter.drawLine(bar.rect.topRight(), bar.rect.bottomRight());
    QRect place = bar.rect.adjusted(2 * ChildFrame, 0, -2 * ChildFrame, 0);
    painter.setPen(palette.color(QPalette::WindowText));
    if ((bar.titleBarFlags & Qt::WindowSystemMenuHint) != 0) {
        const QRect menu = subControlRect(CC_TitleBar, &bar, SC_TitleBarSysMenu, nullptr);
        const QRect close = subControlRect(CC_TitleBar, &bar, SC_TitleBarCloseButton, nullptr);
        bar.icon.paint(&painter, menu);
        DrawClose(close, (bar.activeSubControls & SC_TitleBarCloseButton) != 0, painter);
        place.setLeft(menu.right() + 2 * ChildFrame);
        place.setRight(close.left() - ChildFrame);
    }
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     bar.fontMetrics.elidedText(bar.text, Qt::ElideMiddle, place.width()));
}

// Groove and slider; pages are turned by clicking into the groove.
void ProgramStyle::DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter,
                                 const QWidget* widget) const {
    const QPalette palette = QApplication::palette();
    const bool dark = IsDark(palette);
    painter.save();
    painter.fillRect(bar.rect, dark ? QColor(0x16191D) : QColor(0xF0F0F0));
    QRect slider = subControlRect(CC_ScrollBar, &bar, SC_ScrollBarSlider, widget);
    slider.adjust(SliderGap, SliderGap, -SliderGap, -SliderGap);
    const bool held = (bar.activeSubControls & SC_ScrollBarSlider) != 0;
    const QColor colour =
        dark ? QColor(held ? 0xC0C8D0 : 0x98A2AC) : QColor(held ? 0x404850 : 0x6E7781);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    const int radius = std::min(slider.width(), slider.height()) / 2;
    painter.drawRoundedRect(slider, radius, radius);
    for (const SubControl arrow : {SC_ScrollBarSubLine, SC_ScrollBarAddLine}) {
        const QRect place = subControlRect(CC_ScrollBar, &bar, arrow, widget);
        if (place.isEmpty()) continue;
        QStyleOption sign;
        sign.rect = place.adjusted(SliderGap, SliderGap, -SliderGap, -SliderGap);
        sign.state = State_Enabled;
        sign.palette.setColor(QPalette::ButtonText, colour);
        sign.palette.setColor(QPalette::WindowText, colour);
        const bool first = arrow == SC_ScrollBarSubLine;
        const bool upright = bar.orientation == Qt::Vertical;
        const PrimitiveElement shape = upright
                                           ? (first ? PE_IndicatorArrowUp : PE_IndicatorArrowDown)
                                       : first ? PE_IndicatorArrowLeft
                                               : PE_IndicatorArrowRight;
        proxy()->drawPrimitive(shape, &sign, &painter, widget);
    }
    painter.restore();
}

}  // namespace kelvra::desktop
