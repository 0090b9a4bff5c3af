// SPDX-License-Identifier: GPL-3.0-or-later
// How long the desktop program takes until its first window is painted, and how much memory,
// compared with a bare window with the same controls. Each start is a process of its own; the two
// alternate. Needs no display unless QT_QPA_PLATFORM names one.
#include <QProcess>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "bare_window.h"
#include "desktop_run.h"
#include "process_figures.h"

namespace {

using namespace kelvra;
using Steady = std::chrono::steady_clock;

constexpr int Starts = 10;

struct Start {
    double milliseconds = 0;
    double kibibytes = 0;
};

// Runs until the first window is completely painted, and prints when that was and what the process
// had used by then.
template <class Program>
int RunOnce(Steady::time_point begin, int argc, char** argv) {
    benchmarks::WatchedApplication application(argc, argv);
    double painted = 0;
    application.onPainted = [&] {
        if (painted > 0) return;
        painted = std::chrono::duration<double, std::milli>(Steady::now() - begin).count();
        QTimer::singleShot(std::chrono::milliseconds(200), &application, &QApplication::quit);
    };
    const Program program;
    QApplication::exec();
    std::printf("%.3f %ld\n", painted, benchmarks::Memory("VmHWM"));
    return 0;
}

struct ShownBareWindow {
    benchmarks::BareWindow window;
    ShownBareWindow() { window.show(); }
};

Start Measure(const char* which) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {which});
    process.waitForFinished();
    const QList<QByteArray> words = process.readAllStandardOutput().trimmed().split(' ');
    if (words.size() != 2) {
        std::fprintf(stderr, "%s did not start\n%s", which,
                     process.readAllStandardError().constData());
        std::exit(1);
    }
    return {words[0].toDouble(), words[1].toDouble()};
}

double Median(const std::vector<Start>& starts, double Start::*figure) {
    std::vector<double> values;
    values.reserve(starts.size());
    for (const Start& start : starts) values.push_back(start.*figure);
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void Compare(const char* what, const char* unit, double factor, const std::vector<Start>& kelvra,
             const std::vector<Start>& bare, double Start::*figure) {
    const double ours = factor * Median(kelvra, figure);
    const double floor = factor * Median(bare, figure);
    std::printf("%s: %.1f %s, bare window %.1f %s: %.2f times\n", what, ours, unit, floor, unit,
                ours / floor);
}

}  // namespace

int main(int argc, char** argv) {
    const auto begin = Steady::now();
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::string which = argc > 1 ? argv[1] : "";
    if (which == "--bare") return RunOnce<ShownBareWindow>(begin, argc, argv);
    if (which == "--kelvra") return RunOnce<benchmarks::DesktopRun>(begin, argc, argv);
    const QCoreApplication application(argc, argv);
    std::vector<Start> kelvra, bare;
    for (int i = 0; i < Starts; ++i) {
        bare.push_back(Measure("--bare"));
        kelvra.push_back(Measure("--kelvra"));
    }
    Compare("first painted window", "ms", 1, kelvra, bare, &Start::milliseconds);
    Compare("peak memory", "MiB", 1.0 / 1024, kelvra, bare, &Start::kibibytes);
    return 0;
}
