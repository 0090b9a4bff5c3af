// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/common.h"

#include <QTextDocument>

#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {
constexpr int TwipsPerPixel = 15;
constexpr int DarkBelow = 110;  // of 255, as the eye weighs it
constexpr const char* OwnTooltip = "ownTooltip";
}  // namespace

QColor ToolkitColour(controls::Colour colour) {
    return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
            static_cast<int>(colour >> 16 & 0xFF)};
}

int Pixels(int twips) {
    return twips / TwipsPerPixel;
}
int Twips(int pixels) {
    return pixels * TwipsPerPixel;
}

namespace {

void UpdateColours(QWidget& widget, const controls::Control& control) {
    const auto& back = control.back.Get();
    const auto& fore = control.fore.Get();
    if (!back && !fore) return;
    QPalette palette = widget.palette();
    if (back) {
        const QColor colour = ToolkitColour(*back);
        palette.setColor(QPalette::Window, colour);
        if (qGray(colour.rgb()) < DarkBelow) palette.setColor(QPalette::WindowText, Qt::white);
        widget.setAutoFillBackground(true);
    }
    if (fore) palette.setColor(QPalette::WindowText, ToolkitColour(*fore));
    if (palette != widget.palette()) widget.setPalette(palette);
}

}  // namespace

void UpdateCommon(QWidget& widget, const controls::Control& control) {
    widget.setEnabled(control.enabled);
    // What isn't in its window yet comes into sight with it; shown alone it would be a window.
    const bool alone = widget.parentWidget() == nullptr;
    if (!alone || !control.visible) widget.setVisible(control.visible);
    const QString tooltip = control.tooltip->empty() ? widget.property(OwnTooltip).toString()
                                                     : TooltipText(control.tooltip.Get());
    if (widget.toolTip() != tooltip) widget.setToolTip(tooltip);
    UpdateColours(widget, control);
}

QString TooltipText(const std::string& text) {
    const QString shown = Shown(text);
    return Qt::mightBeRichText(shown) ? Qt::convertFromPlainText(shown) : shown;
}

void SetOwnTooltip(QWidget& widget, const QString& text) {
    widget.setProperty(OwnTooltip, text);
}

QString MarkedText(const controls::Control& control, const std::string& caption) {
    const std::string& text = caption.empty() ? control.access.name : caption;
    const std::size_t place = controls::MnemonicPlace(text, control.access.mnemonic);
    if (place == std::string::npos) return Shown(text).replace('&', "&&");
    return Shown(text.substr(0, place)).replace('&', "&&") + '&' +
           Shown(text.substr(place)).replace('&', "&&");
}

void Describe(QWidget& widget, const QString& name) {
    widget.setAccessibleName(name);
}

}  // namespace kelvra::desktop
