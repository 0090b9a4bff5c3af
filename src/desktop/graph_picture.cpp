// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/graph_picture.h"

#include <QBuffer>
#include <QClipboard>
#include <QSaveFile>
#include <QSvgGenerator>

#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

QPixmap Picture(GraphWidget& graph) {
    graph.TakeIn();
    return graph.toPixmap(graph.width(), graph.height(), graph.devicePixelRatioF());
}

void Draw(GraphWidget& graph, QBuffer& file) {
    graph.TakeIn();
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setResolution(graph.logicalDpiX());  // a unit is a pixel
    generator.setSize(graph.size());
    generator.setViewBox(QRect({}, graph.size()));
    generator.setTitle(graph.accessibleName());
    QCPPainter painter(&generator);
    graph.toPainter(&painter, graph.width(), graph.height());
}

}  // namespace

void CopyPicture(GraphWidget& graph) {
    QGuiApplication::clipboard()->setPixmap(Picture(graph));
}

std::string SavePicture(GraphWidget& graph, const std::string& path) {
    const QString name = Shown(path);
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    if (name.endsWith(".svg", Qt::CaseInsensitive))
        Draw(graph, bytes);
    else
        Picture(graph).save(&bytes, "PNG");
    QSaveFile file(name);
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.write(bytes.data()) == bytes.size() && file.commit();
    return written ? std::string() : Bytes(file.errorString());
}

}  // namespace kelvra::desktop
