// SPDX-License-Identifier: GPL-3.0-or-later
// What the trend's graph costs with eight sensors: taking in and drawing a new picture with ranges
// and limits, compared with a plain replot of the same picture by the plotting library. Needs no
// display unless QT_QPA_PLATFORM names one.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <random>

#include "desktop/graph_adapter.h"
#include "desktop/mirror.h"
#include "desktop/plot_look.h"

namespace {

using namespace kelvra;
using controls::Graph;

constexpr int Sensors = 8;
constexpr int Columns = 1200;
constexpr double Start = 1'110'196'800;  // 2005-03-07 12:00
constexpr QSize Size(880, 400);

std::vector<Graph::Series> MakeSeries(unsigned seed) {
    std::mt19937 random(seed);
    std::normal_distribution<double> noise(0, 0.3);
    std::vector<Graph::Series> all;
    for (int sensor = 0; sensor < Sensors; ++sensor) {
        Graph::Series series{
            std::string(1, static_cast<char>('A' + sensor)), sensor, sensor == 0, {}, {}, {}};
        for (int i = 0; i < Columns; ++i) {
            series.values.push_back(-10 - 3 * sensor + noise(random));
            series.low.push_back(series.values.back() - 0.5);
            series.high.push_back(series.values.back() + 0.5);
        }
        all.push_back(std::move(series));
    }
    return all;
}

// As the clock goes on: the axis, too.
void NewPicture(benchmark::State& state) {
    controls::Changes changes;
    controls::Window window(changes, "W", "", {});
    Graph graph(window, "G", {.xTitle = "", .yTitle = "Power (dBm)", .timeAxis = true});
    desktop::Mirror mirror(changes);
    desktop::GraphWidget widget(graph);
    mirror.Add(graph, std::make_unique<desktop::GraphAdapter>(graph, widget));
    widget.resize(Size);
    widget.show();
    QCoreApplication::processEvents();
    graph.SetY({-40, 0});
    graph.SetLimits({-12, -8});
    const std::vector<Graph::Series> pictures[] = {MakeSeries(1), MakeSeries(2)};
    for (int i = 0; [[maybe_unused]] auto _ : state) {
        ++i;
        graph.SetX({Start + i, Start + i + Columns});
        graph.SetCurve({Start + i, 1, pictures[i % 2][0].values});
        graph.SetSeries(pictures[i % 2]);
        mirror.Flush();
        widget.repaint();
    }
}

void NewPictureFloor(benchmark::State& state) {
    QCustomPlot plot;
    plot.axisRect()->setupFullAxesBox();
    plot.xAxis->setTicker(QSharedPointer<QCPAxisTicker>(new QCPAxisTickerDateTime));
    plot.yAxis->setRange(-40, 0);
    const std::vector<Graph::Series> pictures[] = {MakeSeries(1), MakeSeries(2)};
    for (const Graph::Series& series : pictures[0]) {
        QCPGraph* low = plot.addGraph();
        QCPGraph* high = plot.addGraph();
        QCPGraph* line = plot.addGraph();
        for (QCPGraph* edge : {low, high}) edge->setPen(Qt::NoPen);
        high->setBrush(desktop::PlotTint(desktop::PartOf(series)));
        high->setChannelFillGraph(low);
        line->setPen(desktop::PlotPen(desktop::PartOf(series), series.front));
    }
    plot.resize(Size);
    plot.show();
    QCoreApplication::processEvents();
    for (int i = 0; [[maybe_unused]] auto _ : state) {
        ++i;
        QVector<double> keys;
        for (int column = 0; column < Columns; ++column) keys << Start + i + column;
        for (int graph = 0; const Graph::Series& series : pictures[i % 2])
            for (const auto* values : {&series.low, &series.high, &series.values})
                plot.graph(graph++)->setData(keys, {values->begin(), values->end()}, true);
        plot.xAxis->setRange(Start + i, Start + i + Columns);
        plot.replot(QCustomPlot::rpImmediateRefresh);
    }
}

BENCHMARK(NewPicture)->Unit(benchmark::kMillisecond);
BENCHMARK(NewPictureFloor)->Unit(benchmark::kMillisecond);

}  // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): an exception ends the program, as it should
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
