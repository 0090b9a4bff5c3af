// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/mode_drawing.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <span>

#include "desktop/common.h"

namespace kelvra::desktop {

namespace {

// Places are shares of the drawing's width and height, from its upper left corner.
struct Shape {
    enum Kind {
        Power,   // a line of the power on to (x1, y1); the first one begins it
        Window,  // what is measured: from x1 to x2, the whole height of the picture
        Left,    // what is left out, likewise
        Mark,    // an upright line at x1, from y1 to y2
        Span,    // a length from x1 to x2 at the height y1, its name below it
        Text,    // with its middle at (x1, y1)
    } kind{};
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    const char* text = "";
};

constexpr double Base = 0.64;  // where the power is zero
constexpr double Line = 0.74;  // where lengths are

constexpr Shape Average[] = {
    {Shape::Window, 0.24, 0, 0.80}, {Shape::Power, 0.02, 0.30},
    {Shape::Power, 0.09, 0.12},     {Shape::Power, 0.16, 0.46},
    {Shape::Power, 0.24, 0.30},     {Shape::Power, 0.31, 0.10},
    {Shape::Power, 0.38, 0.46},     {Shape::Power, 0.45, 0.28},
    {Shape::Power, 0.52, 0.12},     {Shape::Power, 0.59, 0.48},
    {Shape::Power, 0.66, 0.30},     {Shape::Power, 0.73, 0.10},
    {Shape::Power, 0.80, 0.44},     {Shape::Power, 0.87, 0.28},
    {Shape::Power, 0.98, 0.20},     {Shape::Span, 0.24, Line, 0.80, 0, "Window: one reading"},
};

constexpr Shape Buffered[] = {
    {Shape::Window, 0.06, 0, 0.24},
    {Shape::Window, 0.27, 0, 0.45},
    {Shape::Window, 0.48, 0, 0.66},
    {Shape::Window, 0.77, 0, 0.95},
    {Shape::Power, 0.02, 0.34},
    {Shape::Power, 0.12, 0.16},
    {Shape::Power, 0.24, 0.30},
    {Shape::Power, 0.36, 0.14},
    {Shape::Power, 0.48, 0.40},
    {Shape::Power, 0.58, 0.22},
    {Shape::Power, 0.70, 0.36},
    {Shape::Power, 0.82, 0.14},
    {Shape::Power, 0.98, 0.32},
    {Shape::Text, 0.15, 0.54, 0, 0, "1"},
    {Shape::Text, 0.36, 0.54, 0, 0, "2"},
    {Shape::Text, 0.57, 0.54, 0, 0, "3"},
    {Shape::Text, 0.715, 0.54, 0, 0, "..."},
    {Shape::Text, 0.86, 0.54, 0, 0, "N"},
    {Shape::Span, 0.06, Line, 0.95, 0, "buffer size: N readings, fetched together"},
};

constexpr Shape Slots[] = {
    {Shape::Window, 0.20, 0, 0.44},
    {Shape::Left, 0.12, 0, 0.20},
    {Shape::Left, 0.44, 0, 0.50},
    {Shape::Window, 0.58, 0, 0.82},
    {Shape::Left, 0.50, 0, 0.58},
    {Shape::Left, 0.82, 0, 0.88},
    {Shape::Power, 0.02, Base - 0.02},
    {Shape::Power, 0.115, Base - 0.02},
    {Shape::Power, 0.135, 0.08},
    {Shape::Power, 0.155, 0.20},
    {Shape::Power, 0.485, 0.20},
    {Shape::Power, 0.515, 0.42},
    {Shape::Power, 0.865, 0.42},
    {Shape::Power, 0.895, 0.28},
    {Shape::Power, 0.98, 0.28},
    {Shape::Mark, 0.12, 0.02, 0, Base},
    {Shape::Mark, 0.50, 0.02, 0, Base},
    {Shape::Mark, 0.88, 0.02, 0, Base},
    {Shape::Text, 0.32, 0.44, 0, 0, "1"},
    {Shape::Text, 0.70, 0.54, 0, 0, "2"},
    {Shape::Text, 0.94, 0.44, 0, 0, "..."},
    {Shape::Span, 0.12, Line, 0.50, 0, "Nominal Width"},
    {Shape::Span, 0.50, Line, 0.58, 0, "from Start"},
    {Shape::Span, 0.82, Line, 0.88, 0, "from End"},
};

constexpr Shape Bursts[] = {
    {Shape::Window, 0.14, 0, 0.70},
    {Shape::Power, 0.02, Base - 0.02},
    {Shape::Power, 0.13, Base - 0.02},
    {Shape::Power, 0.15, 0.14},
    {Shape::Power, 0.30, 0.14},
    {Shape::Power, 0.315, Base - 0.04},
    {Shape::Power, 0.36, Base - 0.04},
    {Shape::Power, 0.375, 0.14},
    {Shape::Power, 0.69, 0.14},
    {Shape::Power, 0.71, Base - 0.02},
    {Shape::Power, 0.98, Base - 0.02},
    {Shape::Text, 0.54, 0.40, 0, 0, "the burst"},
    {Shape::Span, 0.31, Line, 0.37, 0, "shorter: no end"},
    {Shape::Span, 0.70, Line, 0.84, 0, "Dropout: ended"},
};

constexpr Shape TraceShapes[] = {
    {Shape::Window, 0.34, 0, 0.92},
    {Shape::Power, 0.02, Base - 0.04},
    {Shape::Power, 0.17, Base - 0.04},
    {Shape::Power, 0.20, 0.16},
    {Shape::Power, 0.24, 0.24},
    {Shape::Power, 0.52, 0.24},
    {Shape::Power, 0.56, Base - 0.04},
    {Shape::Power, 0.76, Base - 0.04},
    {Shape::Power, 0.79, 0.16},
    {Shape::Power, 0.83, 0.24},
    {Shape::Power, 0.98, 0.24},
    {Shape::Mark, 0.185, 0.02, 0, Base},
    {Shape::Text, 0.09, 0.08, 0, 0, "trigger"},
    {Shape::Span, 0.185, Line, 0.34, 0, "Time Offset"},
    {Shape::Span, 0.34, Line, 0.92, 0, "Meas Time, in N Points"},
};

struct Drawing {
    std::span<const Shape> shapes;
    const char* about;  // for those who can't see it
};

// In the order of the modes.
constexpr Drawing Drawings[] = {
    {Average, "The window is the time over which the power is averaged into one reading."},
    {Buffered, "N averages, one window each, are measured in turn and fetched together."},
    {Slots,
     "After the trigger come time slots of the nominal width. What is excluded at the start and at "
     "the end of each slot is not measured."},
    {Bursts,
     "A burst ends when the power has been low for the dropout time; a shorter dip belongs to it."},
    {TraceShapes,
     "The trace begins after the time offset from the trigger and lasts for the measurement time; "
     "its points are evenly spread over it."},
};

class Sketch {
public:
    Sketch(QPainter& painter, const QWidget& widget)
        : painter_(painter), size_(widget.size()), palette_(widget.palette()) {}

    void Draw(std::span<const Shape> shapes) {
        for (const Shape& shape : shapes) Draw(shape);
        painter_.setPen(QPen(palette_.color(QPalette::Highlight), 2));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawPath(power_);
        painter_.setPen(palette_.color(QPalette::Mid));
        painter_.drawLine(At(0.01, Base), At(0.99, Base));
    }

private:
    QPointF At(double x, double y) const { return {x * size_.width(), y * size_.height()}; }

    void Draw(const Shape& shape) {
        switch (shape.kind) {
            case Shape::Power:
                return power_.elementCount() == 0 ? power_.moveTo(At(shape.x1, shape.y1))
                                                  : power_.lineTo(At(shape.x1, shape.y1));
            case Shape::Window:
                return Fill(shape, Qt::SolidPattern);
            case Shape::Left:
                return Fill(shape, Qt::BDiagPattern);
            case Shape::Mark:
                painter_.setPen(QPen(palette_.color(QPalette::WindowText), 1, Qt::DashLine));
                return painter_.drawLine(At(shape.x1, shape.y1), At(shape.x1, shape.y2));
            case Shape::Span:
                return DrawSpan(shape);
            case Shape::Text:
                return Write(shape.text, At(shape.x1, shape.y1));
        }
    }

    void Fill(const Shape& shape, Qt::BrushStyle style) {
        QColor colour = palette_.color(QPalette::Highlight);
        colour.setAlphaF(style == Qt::SolidPattern ? 0.18F : 0.6F);
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(QBrush(colour, style));
        painter_.drawRect(QRectF(At(shape.x1, 0.02), At(shape.x2, Base)));
    }

    // Ends with strokes; a name that is longer than its length is moved inside the drawing.
    void DrawSpan(const Shape& shape) {
        const QPointF from = At(shape.x1, shape.y1), to = At(shape.x2, shape.y1);
        const QPointF stroke(0, size_.height() * 0.04);
        painter_.setPen(palette_.color(QPalette::WindowText));
        painter_.drawLine(from, to);
        for (const QPointF& end : {from, to}) painter_.drawLine(end - stroke, end + stroke);
        Write(shape.text, {(from.x() + to.x()) / 2, size_.height() * 0.90});
    }

    void Write(const char* text, const QPointF& middle) {
        const QFontMetricsF metrics = painter_.fontMetrics();
        const double width = metrics.horizontalAdvance(text);
        const double left =
            std::clamp(middle.x() - width / 2, 0.0, std::max(size_.width() - width, 0.0));
        painter_.setPen(palette_.color(QPalette::WindowText));
        painter_.drawText(QPointF(left, middle.y() + metrics.ascent() / 2 - metrics.descent() / 2),
                          text);
    }

    QPainter& painter_;
    const QSizeF size_;
    const QPalette palette_;
    QPainterPath power_;
};

constexpr int Characters = 60;  // of the width
constexpr int Lines = 6;

}  // namespace

ModeDrawing::ModeDrawing(std::int32_t mode)
    : mode_(std::clamp<std::int32_t>(mode, 0, static_cast<int>(std::size(Drawings)) - 1)) {
    setAccessibleName("Drawing of the mode's times");
    ShowTooltip(*this, Drawings[mode_].about);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize ModeDrawing::sizeHint() const {
    return {Characters * fontMetrics().averageCharWidth(), Lines * fontMetrics().height()};
}

void ModeDrawing::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    Sketch(painter, *this).Draw(Drawings[mode_].shapes);
}

}  // namespace kelvra::desktop
