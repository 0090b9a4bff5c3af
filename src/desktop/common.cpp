// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/common.h"

#include <QStyle>
#include <QTextDocument>
#include <algorithm>

#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {
constexpr int TwipsPerPixel = 15;
constexpr int OneLine = 80;  // characters
constexpr const char* TooltipProperty = "ownTooltip";
}  // namespace

int Pixels(int twips) {
    return twips / TwipsPerPixel;
}
int Twips(int pixels) {
    return pixels * TwipsPerPixel;
}

void ShowTooltip(QWidget& widget, const QString& text) {
    if (widget.accessibleDescription() == text) return;
    widget.setAccessibleDescription(text);
    const bool oneLine = text.size() < OneLine && !text.contains('\n');
    widget.setToolTip(oneLine && !Qt::mightBeRichText(text) ? text : TooltipText(text));
}

QString TooltipText(const QString& text) {
    return Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

void SetOwnTooltip(QWidget& widget, const QString& text) {
    widget.setProperty(TooltipProperty, text);
}

QString OwnTooltip(const QWidget& widget) {
    return widget.property(TooltipProperty).toString();
}

QString MarkedText(const controls::Control& control, const std::string& caption) {
    const std::string& text = caption.empty() ? control.access.name : caption;
    const std::size_t place = controls::MnemonicPlace(text, control.access.mnemonic);
    if (place == std::string::npos) return Shown(text).replace('&', "&&");
    return Shown(text.substr(0, place)).replace('&', "&&") + '&' +
           Shown(text.substr(place)).replace('&', "&&");
}

void KeepRoom(QWidget& widget) {
    QSizePolicy policy = widget.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget.setSizePolicy(policy);
}

QRect OnScreen(QRect wanted, const QScreen& screen, const QWidget& window) {
    const QRect free = screen.availableGeometry();
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const bool tooHigh = wanted.height() + title > free.height();
    const QRect room = tooHigh ? free.adjusted(0, title, 0, 0) : free;
    wanted.setSize(wanted.size().boundedTo(room.size()));
    wanted.moveLeft(std::clamp(wanted.left(), room.left(), room.right() + 1 - wanted.width()));
    wanted.moveTop(std::clamp(wanted.top(), room.top(), room.bottom() + 1 - wanted.height()));
    return wanted;
}

}  // namespace kelvra::desktop
