// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/graph_widget.h"

#include <algorithm>
#include <utility>

#include "desktop/graph_keys.h"
#include "desktop/plot_drawing.h"
#include "desktop/plot_tickers.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

using controls::Graph;

// Logical pixels.
constexpr int Padding = 3;
constexpr int TickLength = 4;
// Tick labels up to this one never move the graph.
constexpr const char* WidestTick = "-0000.0";
constexpr const char* WidestTime = "0000-00-00";
constexpr int LeastWidth = 16;  // characters
constexpr int LeastHeight = 7;  // lines

// One part of the graph, in one layer.
class DrawnPart final : public QCPLayerable {
public:
    DrawnPart(GraphWidget& widget, QCPLayer& layer, GraphWidget::DrawPart drawPart)
        : QCPLayerable(&widget, layer.name()), widget_(widget), drawPart_(drawPart) {}

protected:
    QRect clipRect() const override { return widget_.axisRect()->rect(); }
    void applyDefaultAntialiasingHint(QCPPainter*) const override {}
    void draw(QCPPainter* painter) override {
        painter->setFont(widget_.font());
        drawPart_(*painter, widget_.Scale(), widget_.Record());
    }

private:
    GraphWidget& widget_;
    GraphWidget::DrawPart drawPart_;
};

// The titles of the axes, at the widget's edges, where they stay however wide the labels are; and
// the legend.
class Titles final : public QCPLayerable {
public:
    explicit Titles(GraphWidget& widget) : QCPLayerable(&widget, "axes"), widget_(widget) {}

protected:
    QRect clipRect() const override { return widget_.viewport().translated(0, 1); }
    void applyDefaultAntialiasingHint(QCPPainter*) const override {}
    void draw(QCPPainter* painter) override {
        const controls::GraphParts& parts = widget_.Record().Parts();
        const QRect place = widget_.axisRect()->rect();
        const QRect all = widget_.viewport().adjusted(0, Padding, 0, -Padding);
        painter->setFont(widget_.font());
        painter->setPen(PlotColour(PlotPart::Text));
        painter->drawText(place.left(), all.top(), place.width(), all.height(),
                          Qt::AlignHCenter | Qt::AlignBottom | Qt::TextDontClip,
                          Shown(parts.xTitle));
        DrawLegend(*painter, LegendOf(widget_.Record()),
                   {place.left(), all.top(), place.width(), place.top()});
        painter->translate(Padding, place.center().y());
        painter->rotate(-90);
        painter->drawText(-place.height() / 2, 0, place.height(), all.width(),
                          Qt::AlignHCenter | Qt::AlignTop | Qt::TextDontClip,
                          Shown(widget_.Record().yTitle.Get()));
    }

private:
    GraphWidget& widget_;
};

QCPRange RangeOf(const Graph::Axis& axis) {
    const Graph::Axis usable = PlotScale::Usable(axis);
    return {usable.min, usable.max};
}

// True if that is a different one.
template <class Value>
bool Note(Value& known, const Value& now) {
    if (known == now) return false;
    known = now;
    return true;
}

}  // namespace

GraphWidget::GraphWidget(Graph& record) : record_(record) {
    setFocusPolicy(Qt::StrongFocus);
    removeLayer(layer("overlay"));
    compared_ = AddBuffer("compared", {DrawHeldCurves, DrawBox, DrawLimits});
    cursors_ = AddBuffer("cursors", {DrawCursors});
    curve_ = AddBuffer("curve", {DrawCurve, DrawCaptions, DrawEmptyText});
    SetUpAxes();
    UpdateLook();
}

QCPLayer* GraphWidget::AddBuffer(const QString& name, std::initializer_list<DrawPart> parts) {
    addLayer(name);
    QCPLayer* added = layer(name);
    added->setMode(QCPLayer::lmBuffered);
    for (const DrawPart part : parts) new DrawnPart(*this, *added, part);
    return added;
}

void GraphWidget::SetUpAxes() {
    axisRect()->setupFullAxesBox();
    for (QCPAxis* axis : {xAxis2, yAxis2}) axis->setTicks(false);
    for (QCPAxis* axis : {xAxis, yAxis}) {
        axis->setTickLength(0, TickLength);
        axis->setSubTicks(false);
        axis->setTickLabelPadding(Padding);
    }
    if (record_.Parts().stairs) {
        // Numbers of things have no halves.
        const QSharedPointer<QCPAxisTickerFixed> whole(new QCPAxisTickerFixed);
        whole->setScaleStrategy(QCPAxisTickerFixed::ssMultiples);
        xAxis->setTicker(whole);
    }
    if (record_.Parts().timeAxis) xAxis->setTicker(QSharedPointer<QCPAxisTicker>(new TimeTicker));
    numbers_ = yAxis->ticker();
    prefixed_.reset(new PrefixTicker);
    new Titles(*this);
}

void GraphWidget::ColourAxis(QCPAxis& axis) {
    const QColor text = PlotColour(PlotPart::Text);
    axis.setBasePen(text);
    axis.setTickPen(text);
    axis.setTickLabelColor(text);
    axis.setTickLabelFont(font());
    axis.grid()->setPen(PlotColour(PlotPart::Grid));
    axis.grid()->setZeroLinePen(PlotColour(PlotPart::Grid));
}

void GraphWidget::UpdateLook() {
    setBackground(QBrush(PlotColour(PlotPart::Ground)));
    for (QCPAxis* axis : {xAxis, yAxis, xAxis2, yAxis2}) ColourAxis(*axis);
    UpdateMargins();
    stale_ = true;
    update();
}

// Room for the titles and the widest usual labels, so that the graph doesn't move when they change.
// A margin that the toolkit computes has no room for the titles, so it is never wanted.
void GraphWidget::UpdateMargins() {
    const QFontMetrics metrics(font());
    const int title = metrics.height() + 2 * Padding;
    const int ticks = TickLength + Padding;
    const int label = metrics.horizontalAdvance(WidestTick);
    axisRect()->setAutoMargins(QCP::msNone);
    const int left = title + label + ticks, right = label / 2;
    const int above = LegendHeight(drawnLegend_, width() - left - right, metrics);
    if (record_.Parts().timeAxis)
        xAxis->ticker()->setTickCount(std::max(
            (width() - left - right) / (metrics.horizontalAdvance(WidestTime) * 5 / 4), 2));
    axisRect()->setMargins(
        {left, above + metrics.height() / 2 + Padding, right, title + metrics.height() + ticks});
}

PlotScale GraphWidget::Scale() const {
    // The toolkit's axes count from the last line of pixels.
    return {QRectF(axisRect()->rect()).translated(0, -1), record_.ShownAxes()};
}

bool GraphWidget::CursorsChanged(const Graph::ChangedParts& changed) {
    const bool others = Note(drawnCursors_, record_.CursorCount());
    const bool chosen = Note(drawnChosen_, record_.chosen.Get());
    return others || chosen || !changed.cursors.empty();
}

bool GraphWidget::Compares() const {
    const bool limits = record_.Limits() != Graph::Band();
    bool held = false;
    for (const auto which :
         {controls::Held::Maximum, controls::Held::Minimum, controls::Held::Reference})
        held = held || !record_.HeldCurve(which).values.empty();
    return held || limits || record_.Box().has_value();
}

bool GraphWidget::TitleChanged() {
    yAxis->setTicker(record_.prefixes ? prefixed_ : numbers_);
    return Note(drawnTitle_, record_.yTitle.Get());
}

void GraphWidget::TakeIn() {
    const Graph::ChangedParts changed = record_.TakeChangedParts();
    const bool cursors = CursorsChanged(changed);
    const bool empty = std::exchange(drawnEmptyText_, record_.emptyText.Get()) != drawnEmptyText_;
    const bool otherLegend =
        (changed.held || changed.series) && Note(drawnLegend_, LegendOf(record_));
    if (otherLegend) UpdateMargins();
    const bool other = Note(compares_, Compares());
    if (other) compared_->setMode(compares_ ? QCPLayer::lmBuffered : QCPLayer::lmLogical);
    const bool otherTitle = TitleChanged();
    if (std::exchange(stale_, false) || changed.axes || otherLegend || other || otherTitle) {
        xAxis->setRange(RangeOf(record_.ShownAxes().x));
        yAxis->setRange(RangeOf(record_.ShownAxes().y));
        replot(rpQueuedRefresh);
        return;
    }
    if (changed.held || changed.box || changed.limits) compared_->replot();
    if (cursors) cursors_->replot();
    if (changed.curve || changed.series || changed.labels || empty) curve_->replot();
}

void GraphWidget::paintEvent(QPaintEvent* event) {
    // What is drawn here is painted now; the toolkit need not be asked to paint again.
    setAttribute(Qt::WA_UpdatesDisabled);
    TakeIn();
    setAttribute(Qt::WA_UpdatesDisabled, false);
    QCustomPlot::paintEvent(event);
    if (const auto rubber = mouse_.Rectangle()) {
        QPainter painter(this);
        painter.setPen(QPen(PlotColour(PlotPart::Text), 1, Qt::DashLine));
        painter.drawRect(*rubber);
    }
}

// The legend may need another number of lines.
void GraphWidget::resizeEvent(QResizeEvent* event) {
    UpdateMargins();
    QCustomPlot::resizeEvent(event);
}

void GraphWidget::changeEvent(QEvent* event) {
    QCustomPlot::changeEvent(event);
    if (event->type() == QEvent::FontChange) UpdateLook();
}

void GraphWidget::hideEvent(QHideEvent* event) {
    QCustomPlot::hideEvent(event);
    mouse_.End();
}

void GraphWidget::leaveEvent(QEvent* event) {
    QCustomPlot::leaveEvent(event);
    mouse_.Leave();
}

void GraphWidget::keyPressEvent(QKeyEvent* event) {
    if (!PressGraphKey(record_, *event)) QCustomPlot::keyPressEvent(event);
}

void GraphWidget::contextMenuEvent(QContextMenuEvent* event) {
    if (onMenu) onMenu(event->globalPos());
}

QSize GraphWidget::sizeHint() const {
    return 2 * minimumSizeHint();
}

QSize GraphWidget::minimumSizeHint() const {
    const QMargins margins = axisRect()->margins();
    const QFontMetrics metrics(font());
    return {margins.left() + margins.right() + LeastWidth * metrics.averageCharWidth(),
            margins.top() + margins.bottom() + LeastHeight * metrics.lineSpacing()};
}

}  // namespace kelvra::desktop
