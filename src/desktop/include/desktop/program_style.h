// SPDX-License-Identifier: GPL-3.0-or-later
// The toolkit's style, but for the windows inside the frame (a flat title, one thin border), the
// scroll bars, whose sliders must be seen on every background, and the outlines of boxes, marks and
// groups, which must be seen in every colour scheme.
#pragma once

#include <QProxyStyle>
#include <QStyleOption>

namespace kelvra::desktop {

class ProgramStyle final : public QProxyStyle {
public:
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;

private:
    void DrawTitle(const QStyleOptionTitleBar& bar, QPainter& painter) const;
    void DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter,
                       const QWidget* widget) const;
};

}  // namespace kelvra::desktop
