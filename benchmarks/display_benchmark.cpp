// SPDX-License-Identifier: GPL-3.0-or-later
// What a graph costs: taking in and drawing a new trace with its cursors and captions, and one step
// of a cursor's drag, compared with a plain replot of the same picture by the plotting library; and
// a new trace while the display is hidden. Needs no display unless QT_QPA_PLATFORM names one.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <cmath>
#include <memory>
#include <random>
#include <vector>

#include "desktop/graph_adapter.h"
#include "desktop/mirror.h"
#include "desktop/plot_look.h"

namespace {

using namespace kelvra;
using controls::CursorLook;
using controls::Graph;
using desktop::PlotPart;

constexpr int Slots = 8;
constexpr double SlotWidth = 1;  // ms
constexpr double End = 10;
constexpr QSize Size(880, 400);
constexpr Graph::Axes Axes{{0, End}, {-70, 0}};

// Slots of different levels, with noise: two traces, so that each is a new one.
std::vector<double> MakeTrace(int points, unsigned seed) {
    std::mt19937 random(seed);
    std::normal_distribution<double> noise(0, 0.3);
    std::vector<double> trace;
    for (int i = 0; i < points; ++i) {
        const int slot = static_cast<int>(i * End / points / SlotWidth);
        trace.push_back(slot < Slots ? -10.0 - 3 * (slot * 5 % Slots) + noise(random) : -60);
    }
    return trace;
}

std::string CaptionOf(int slot, int trace) {
    return "-1" + std::to_string(slot) + "." + std::to_string(10 + trace);
}

std::vector<Graph::Cursor> MakeCursors() {
    std::vector<Graph::Cursor> cursors{{true, 0, -30, true, CursorLook::Level},
                                       {false, 1.1, 0, true, CursorLook::ZoneStart},
                                       {false, 1.9, 0, true, CursorLook::ZoneStop},
                                       {false, 0, 0, true, CursorLook::Origin}};
    for (int slot = 1; slot <= Slots; ++slot) cursors.push_back({false, slot * SlotWidth, 0});
    return cursors;
}

void Paint(QWidget& widget) {
    widget.repaint();
}

// A record with all that, in a window with the desktop's widget.
class Display {
public:
    explicit Display(int points) {
        graph_.SetX(Axes.x);
        graph_.SetY(Axes.y);
        for (const Graph::Cursor& cursor : MakeCursors()) graph_.AddCursor(cursor);
        for (int slot = 0; slot < Slots; ++slot)
            graph_.AddLabel({(slot + 0.5) * SlotWidth, 0, CaptionOf(slot, 0)});
        for (const unsigned seed : {1, 2}) traces_.push_back(MakeTrace(points, seed));
        mirror_.Add(graph_, std::make_unique<desktop::GraphAdapter>(graph_, widget_));
        widget_.resize(Size);
        widget_.show();
        QCoreApplication::processEvents();
    }

    QWidget& Widget() { return widget_; }

    void NewTrace() {
        shown_ = 1 - shown_;
        graph_.SetCurve({0, End / static_cast<double>(traces_[0].size()),
                         traces_[static_cast<std::size_t>(shown_)]});
        for (int slot = 0; slot < Slots; ++slot)
            graph_.SetLabel(slot, {(slot + 0.5) * SlotWidth, 0, CaptionOf(slot, shown_)});
        mirror_.Flush();
    }

    void Drag() {
        shown_ = 1 - shown_;
        graph_.DragCursor(4, 0.9 + 0.1 * shown_, 0);
        mirror_.Flush();
    }

private:
    controls::Changes changes_;
    controls::Window window_{changes_, "W", "", {}};
    Graph graph_{window_, "G", {"Time (ms)", "Power (dBm)"}};
    desktop::Mirror mirror_{changes_};
    desktop::GraphWidget widget_{graph_};
    std::vector<std::vector<double>> traces_;
    int shown_ = 0;
};

// The same picture from the library's own parts.
class PlainPlot {
public:
    explicit PlainPlot(int points) {
        plot_.setBackground(QBrush(PlotColour(PlotPart::Ground)));
        plot_.axisRect()->setupFullAxesBox();
        const QColor text = PlotColour(PlotPart::Text);
        for (QCPAxis* axis : {plot_.xAxis, plot_.yAxis}) {
            axis->setBasePen(text);
            axis->setTickPen(text);
            axis->setSubTicks(false);
            axis->setTickLabelColor(text);
            axis->setLabelColor(text);
            axis->grid()->setPen(PlotColour(PlotPart::Grid));
        }
        plot_.xAxis->setLabel("Time (ms)");
        plot_.yAxis->setLabel("Power (dBm)");
        plot_.xAxis->setRange(Axes.x.min, Axes.x.max);
        plot_.yAxis->setRange(Axes.y.min, Axes.y.max);
        plot_.addGraph()->setPen(desktop::PlotPen(PlotPart::Curve));
        for (const Graph::Cursor& cursor : MakeCursors()) AddCursor(cursor);
        for (int slot = 0; slot < Slots; ++slot) AddCaption(slot);
        for (const unsigned seed : {1, 2}) traces_.push_back(MakeTrace(points, seed));
        plot_.resize(Size);
        plot_.show();
        QCoreApplication::processEvents();
    }

    void NewTrace() {
        shown_ = 1 - shown_;
        const std::vector<double>& trace = traces_[static_cast<std::size_t>(shown_)];
        QVector<double> keys, values;
        for (std::size_t i = 0; i < trace.size(); ++i) {
            keys << End / static_cast<double>(trace.size()) * static_cast<double>(i);
            values << trace[i];
        }
        plot_.graph()->setData(keys, values, true);
        for (int slot = 0; slot < Slots; ++slot)
            captions_[slot]->setText(QString::fromStdString(CaptionOf(slot, shown_)));
        plot_.replot(QCustomPlot::rpImmediateRefresh);
    }

    void Drag() {
        shown_ = 1 - shown_;
        Place(*cursors_[4], {false, 0.9 + 0.1 * shown_, 0});
        plot_.replot(QCustomPlot::rpImmediateRefresh);
    }

private:
    static void Place(QCPItemStraightLine& line, const Graph::Cursor& cursor) {
        line.point1->setCoords(cursor.x, cursor.y);
        line.point2->setCoords(cursor.x + (cursor.horizontal ? 1 : 0),
                               cursor.y + (cursor.horizontal ? 0 : 1));
    }
    void AddCursor(const Graph::Cursor& cursor) {
        auto* line = new QCPItemStraightLine(&plot_);
        line->setPen(desktop::PlotPen(desktop::PartOf(cursor.look)));
        line->setAntialiased(false);
        Place(*line, cursor);
        cursors_ << line;
    }
    void AddCaption(int slot) {
        auto* caption = new QCPItemText(&plot_);
        caption->setPositionAlignment(Qt::AlignHCenter | Qt::AlignTop);
        caption->setColor(PlotColour(PlotPart::Text));
        caption->position->setCoords((slot + 0.5) * SlotWidth, Axes.y.max);
        captions_ << caption;
    }

    QCustomPlot plot_;
    QVector<QCPItemStraightLine*> cursors_;
    QVector<QCPItemText*> captions_;
    std::vector<std::vector<double>> traces_;
    int shown_ = 0;
};

void NewTrace(benchmark::State& state) {
    Display display(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) {
        display.NewTrace();
        Paint(display.Widget());
    }
}

void NewTraceFloor(benchmark::State& state) {
    PlainPlot plot(static_cast<int>(state.range(0)));
    for ([[maybe_unused]] auto _ : state) plot.NewTrace();
}

void NewTraceHidden(benchmark::State& state) {
    Display display(static_cast<int>(state.range(0)));
    display.Widget().hide();
    for ([[maybe_unused]] auto _ : state) {
        display.NewTrace();
        QCoreApplication::processEvents();
    }
}

void Drag(benchmark::State& state) {
    Display display(static_cast<int>(state.range(0)));
    display.NewTrace();
    for ([[maybe_unused]] auto _ : state) {
        display.Drag();
        Paint(display.Widget());
    }
}

void DragFloor(benchmark::State& state) {
    PlainPlot plot(static_cast<int>(state.range(0)));
    plot.NewTrace();
    for ([[maybe_unused]] auto _ : state) plot.Drag();
}

constexpr int Few = 312, Many = 1024;  // points
BENCHMARK(NewTrace)->Arg(Few)->Arg(Many)->Unit(benchmark::kMicrosecond);
BENCHMARK(NewTraceFloor)->Arg(Few)->Arg(Many)->Unit(benchmark::kMicrosecond);
BENCHMARK(Drag)->Arg(Few)->Arg(Many)->Unit(benchmark::kMicrosecond);
BENCHMARK(DragFloor)->Arg(Few)->Arg(Many)->Unit(benchmark::kMicrosecond);
BENCHMARK(NewTraceHidden)->Arg(Many)->Unit(benchmark::kMicrosecond);

}  // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): an exception ends the program, as it should
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
