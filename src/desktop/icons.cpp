// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/icons.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

#include "desktop/qt_text.h"
#include "desktop/schemes.h"
#include "util/number_reading.h"

// The pictures are in a static library and must be registered, outside of any namespace.
static void InitialisePictures() {
    Q_INIT_RESOURCE(icons);
}

namespace kelvra::desktop {

namespace {

constexpr int IconSide = 28;  // logical pixels
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
    // A disabled button's picture is the other one, paled by the toolkit.
    return ":/icons/" + Shown(name).replace("DisPic", "Pic") + ".svg";
}

// Colours of the pictures that the other schemes' backgrounds hide.
constexpr struct {
    const char* drawn;
    const char* calm;
    const char* dark;
} Recoloured[] = {
    {"#cfe3ff", "#1f2328", "#cfe3ff"},  // lines on the strip
    {"#7fe07f", "#1a6b2f", "#7fe07f"},  // what turns
    {"#8fa3c4", "#656d76", "#8fa3c4"},
    {"#5b6b7a", "#5b6b7a", "#b4bec8"},  // lines on buttons
};

QByteArray InScheme(const QString& file) {
    QFile drawing(file);
    if (!drawing.open(QIODevice::ReadOnly)) return {};
    QByteArray picture = drawing.readAll();
    if (CurrentScheme() == Scheme::Classic) return picture;
    for (const auto& colour : Recoloured)
        picture.replace(colour.drawn, CurrentScheme() == Scheme::Calm ? colour.calm : colour.dark);
    return picture;
}

}  // namespace

QPixmap PictureOf(const std::string& name, int size, qreal pixelRatio) {
    QPixmap pixmap(QSize(size, size) * pixelRatio);
    pixmap.setDevicePixelRatio(pixelRatio);
    pixmap.fill(Qt::transparent);
    QSvgRenderer renderer(InScheme(FileOf(name)));
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
    if (!QFile::exists(file)) return {};
    if (CurrentScheme() == Scheme::Classic) return QIcon(file);
    QIcon icon;
    for (const int ratio : {1, 2, 3}) icon.addPixmap(PictureOf(name, IconSide, ratio));
    return icon;
}

}  // namespace kelvra::desktop
