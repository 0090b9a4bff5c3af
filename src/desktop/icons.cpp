// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/icons.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include "desktop/qt_text.h"
#include "util/number_reading.h"

// The pictures are in a static library and must be registered, outside of any namespace.
static void InitialisePictures() {
    Q_INIT_RESOURCE(icons);
}

namespace kelvra::desktop {

namespace {

constexpr int BusySteps = 8;
constexpr std::string_view BusyName = "busy";

// The eighth of a turn that a busy picture shows; 0 for other pictures.
int BusyStep(std::string_view name) {
    if (!name.starts_with(BusyName)) return 0;
    const auto number = util::ReadWholeNumber(name.substr(BusyName.size())).value_or(1);
    return static_cast<int>((number - 1) % BusySteps);
}

QString FileOf(const std::string& name) {
    InitialisePictures();
    if (name.starts_with(BusyName)) return ":/icons/busy.svg";
    return ":/icons/" + Shown(name) + ".svg";
}

}  // namespace

QPixmap PictureOf(const std::string& name, int size, qreal pixelRatio) {
    QPixmap pixmap(QSize(size, size) * pixelRatio);
    pixmap.setDevicePixelRatio(pixelRatio);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(FileOf(name));
    if (!renderer.isValid()) return pixmap;
    QPainter painter(&pixmap);
    const qreal half = size / 2.0;
    painter.translate(half, half);
    painter.rotate(360.0 / BusySteps * BusyStep(name));
    renderer.render(&painter, QRectF(-half, -half, size, size));
    return pixmap;
}

QIcon Icon(const std::string& name) {
    const QString file = FileOf(name);
    return QFile::exists(file) ? QIcon(file) : QIcon();
}

}  // namespace kelvra::desktop
