// SPDX-License-Identifier: GPL-3.0-or-later
// The widget of a graph. Each class of what it shows has a paint buffer of its own, and is drawn
// there straight from the record when the widget is painted, and only if it has changed: a widget
// that is not in sight does nothing.
#pragma once

#include <qcustomplot.h>

#include <functional>
#include <string>
#include <vector>

#include "desktop/graph_mouse.h"
#include "desktop/plot_legend.h"
#include "desktop/plot_scale.h"

namespace kelvra::desktop {

class GraphWidget final : public QCustomPlot {
public:
    using DrawPart = void (*)(QCPPainter&, const PlotScale&, const controls::Graph&);

    explicit GraphWidget(controls::Graph& record);

    controls::Graph& Record() { return record_; }
    PlotScale Scale() const;

    // Takes over the scheme's colours and the font.
    void UpdateLook();
    // Brings the buffers up to date with the record.
    void TakeIn();

    std::function<void(const QPoint& place)> onMenu;  // in the screen's coordinates

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override { mouse_.Press(*event); }
    void mouseMoveEvent(QMouseEvent* event) override { mouse_.Move(*event); }
    void mouseReleaseEvent(QMouseEvent* event) override { mouse_.Release(*event); }
    void mouseDoubleClickEvent(QMouseEvent* event) override { mouse_.DoubleClick(*event); }
    void wheelEvent(QWheelEvent* event) override { mouse_.Wheel(*event); }
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QCPLayer* AddBuffer(const QString& name, std::initializer_list<DrawPart> parts);
    void SetUpAxes();
    void ColourAxis(QCPAxis& axis);
    void UpdateMargins();
    bool Compares() const;
    bool TitleChanged();
    bool CursorsChanged(const controls::Graph::ChangedParts& changed);

    controls::Graph& record_;
    GraphMouse mouse_{*this};
    QCPLayer* compared_ = nullptr;  // held curves and the box; a buffer only if there are any
    QCPLayer* cursors_ = nullptr;
    QCPLayer* curve_ = nullptr;  // and the texts
    bool stale_ = true;          // everything must be drawn
    int drawnCursors_ = 0;
    int drawnChosen_ = -1;
    std::string drawnEmptyText_;
    std::vector<LegendEntry> drawnLegend_;
    std::string drawnTitle_;                            // of the y axis
    QSharedPointer<QCPAxisTicker> numbers_, prefixed_;  // of the y axis
    bool compares_ = true;                              // there are held curves, the box or limits
};

}  // namespace kelvra::desktop
