// SPDX-License-Identifier: GPL-3.0-or-later
// What the mouse does in a graph: it drags cursors, or, while the graph zooms, draws rectangles,
// shifts the part that is shown, and turns the wheel. All of it becomes acts of the record, at most
// one of each kind in a round of the event loop.
#pragma once

#include <QMouseEvent>
#include <QTimer>
#include <QWheelEvent>
#include <optional>

#include "controls/graph.h"

namespace kelvra::desktop {

class GraphWidget;

class GraphMouse {
public:
    explicit GraphMouse(GraphWidget& widget);

    void Press(const QMouseEvent& event);
    void Move(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    void DoubleClick(const QMouseEvent& event);
    void Wheel(QWheelEvent& event);
    void Leave();
    void End();

    // The rectangle that is being drawn, in pixels.
    std::optional<QRectF> Rectangle() const;

private:
    enum class Act { None, Drag, Shift, Rectangle };

    void Begin(const QMouseEvent& event);
    void Apply();
    void Point();
    void DragTo(const QPointF& place);
    void ShiftTo(const QPointF& place);
    void ZoomIntoRectangle();
    void ShowPointer();
    int CursorNear(const QPointF& place) const;

    GraphWidget& widget_;
    QTimer soon_;
    Act act_ = Act::None;
    QPointF place_;               // of the mouse
    QPointF pressed_;             // where the button went down
    bool moved_ = false;          // since then
    int cursor_ = -1;             // that is dragged
    QPointF grip_;                // from the mouse to the cursor
    controls::Graph::Axes from_;  // shown when the shift began
    bool pointing_ = false;
};

}  // namespace kelvra::desktop
