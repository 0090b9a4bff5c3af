// SPDX-License-Identifier: GPL-3.0-or-later
// What the desktop program costs: its passes compared with a bare loop and a bare window, memory
// over a million passes, idling, and how soon a click is answered. Takes two minutes, or runs one
// part ("passes", "memory", "idle", "clicks"), and prints figures. Needs no display unless
// QT_QPA_PLATFORM names one.
#include <QMouseEvent>
#include <QPushButton>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <optional>
#include <random>
#include <thread>
#include <vector>

#include "bare_window.h"
#include "desktop_run.h"
#include "instant_sensors.h"
#include "pass_texts.h"
#include "process_figures.h"

namespace {

using namespace kelvra;
using benchmarks::DesktopRun;
using benchmarks::Memory;
using benchmarks::ProcessorTime;
using benchmarks::WatchedApplication;
using std::chrono::milliseconds;
using Steady = std::chrono::steady_clock;

constexpr auto WarmUp = milliseconds(500);
constexpr auto PassesFor = milliseconds(2000);
constexpr int Rounds = 5;
constexpr int ClickCount = 500;

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Processor time per pass after the first passes.
class PassTimer {
public:
    // Takes the number of passes so far, now and then; true once it has measured enough.
    bool Looks(std::int64_t passes) {
        const auto now = Steady::now();
        if (!begun_ && now - start_ >= WarmUp) {
            begun_ = true;
            passesBefore_ = passes;
            timeBefore_ = ProcessorTime();
        }
        if (now - start_ < WarmUp + PassesFor) return false;
        perPass_ = (ProcessorTime() - timeBefore_) / static_cast<double>(passes - passesBefore_);
        return true;
    }
    double Microseconds() const { return 1e6 * perPass_; }

private:
    Steady::time_point start_ = Steady::now();
    bool begun_ = false;
    std::int64_t passesBefore_ = 0;
    double timeBefore_ = 0;
    double perPass_ = 0;
};

double KelvraPass() {
    DesktopRun run;
    benchmarks::PlugIn<2>(run.kelvra, true);
    PassTimer timer;
    run.Measure([&] { return timer.Looks(run.kelvra.state.passes); });
    return timer.Microseconds();
}

void Hand(QTableWidget& table, int row, int column, const std::string& text) {
    const QString shown = QString::fromStdString(text);
    if (QTableWidgetItem* item = table.item(row, column); item->text() != shown)
        item->setText(shown);
}

// Makes the texts, hands them to the table 60 times a second, and checks for its timer each
// millisecond.
double BarePass() {
    benchmarks::BareWindow window;
    window.show();
    benchmarks::Row rows[2];
    benchmarks::Formulas formulas;
    QTimer frame;
    QObject::connect(&frame, &QTimer::timeout, [&] {
        for (int row = 0; row < 2; ++row) {
            const benchmarks::Row& cells = rows[row];
            int column = 1;
            for (const std::string* text :
                 {&cells.watt, &cells.dbm, &cells.activity, &cells.sigma, &cells.count})
                Hand(*window.results, row, column++, *text);
        }
        Hand(*window.formulas, 0, 2, formulas.difference);
        Hand(*window.formulas, 1, 2, formulas.ratio);
    });
    frame.setTimerType(Qt::PreciseTimer);
    frame.start(milliseconds(17));
    PassTimer timer;
    double power = 1e-6;
    auto delivered = Steady::now();
    for (int pass = 0;; ++pass) {
        const double before = power;
        power = benchmarks::NextPower(power);
        for (benchmarks::Row& row : rows) row.Show(power, pass);
        formulas.Show(power, before);
        if (Steady::now() - delivered < milliseconds(1)) continue;
        QCoreApplication::processEvents();
        if (timer.Looks(pass)) return timer.Microseconds();
        delivered = Steady::now();
    }
}

// The two alternate, so that a busy machine slows both.
void TimePasses() {
    std::vector<double> kelvra, bare;
    for (int round = 0; round < Rounds; ++round) {
        bare.push_back(BarePass());
        kelvra.push_back(KelvraPass());
    }
    std::printf("pass, shown and painted: %.2f us, bare loop %.2f us: %.2f times\n", Median(kelvra),
                Median(bare), Median(kelvra) / Median(bare));
}

void WatchMemory() {
    constexpr std::int64_t first = 100'000;
    constexpr std::int64_t last = first + 1'000'000;
    DesktopRun run;
    benchmarks::PlugIn<2>(run.kelvra, true);
    long before = 0;
    run.Measure([&] {
        if (before == 0 && run.kelvra.state.passes >= first) before = Memory("VmRSS");
        return run.kelvra.state.passes >= last;
    });
    std::printf("a million passes: %ld KiB resident before, %ld KiB more after\n", before,
                Memory("VmRSS") - before);
}

// Measures processor time and paint events while events run.
void Watch(WatchedApplication& application, const char* what, const std::function<void()>& run) {
    int painted = 0;
    application.onPaint = [&](QObject&) { ++painted; };
    const auto begin = Steady::now();
    const double before = ProcessorTime();
    run();
    const double length = std::chrono::duration<double>(Steady::now() - begin).count();
    const double share = (ProcessorTime() - before) / length;
    application.onPaint = nullptr;
    std::printf("%s: %d paint events in %.0f s, %.3f %% of a core\n", what, painted, length,
                100 * share);
}

void WatchIdling(WatchedApplication& application) {
    constexpr auto settling = milliseconds(1000);
    constexpr auto length = milliseconds(5000);
    DesktopRun run;
    benchmarks::PlugIn<8>(run.kelvra, false);
    benchmarks::RunEvents(settling);
    Watch(application, "idle, 8 sensors", [&] { benchmarks::RunEvents(length); });
    const auto measure = [&] {
        const auto begin = Steady::now();
        run.Measure([&] { return Steady::now() - begin >= length; });
    };
    Watch(application, "waiting for a trigger, 8 sensors", measure);
    run.desktop.Main().Widget().hide();
    benchmarks::RunEvents(settling);
    Watch(application, "hidden, 8 sensors", [&] { benchmarks::RunEvents(length); });
    benchmarks::PlugInMeasuring(run.kelvra.library.instrument, true);
    Watch(application, "hidden and measuring at full speed", measure);
}

// Clicks a button from another thread at random times, each click after the one before was
// answered. The answer is a text that the button's rule changes, once it is painted.
class Clicks {
public:
    Clicks(WatchedApplication& application, DesktopRun& run, int count)
        : application_(application),
          button_(run.Find<QPushButton>("Show_Settings")),
          answer_(run.Find<QLabel>("SensorLabel")),
          count_(count) {
        button_.click();  // makes the dialog, which is no part of the answer
        run.desktop.Painter().Flush();
        run.kelvra.forms.mdiMain.Show_Settings.click.Connect([this, &run] {
            raised_.push_back(Since(sent_));
            run.kelvra.forms.mdiMain.SensorLabel.caption =
                QString::number(raised_.size()).toStdString();
        });
        application.onPaint = [this](QObject& widget) {
            seen_ = seen_ || (&widget == &answer_ && answer_.text() == Expected());
        };
        application.onPainted = [this] {
            if (!seen_) return;
            seen_ = false;
            answered_.push_back(Since(sent_));
            waiting_ = false;
        };
        thread_ = std::thread([this] { Send(); });
    }
    Clicks(const Clicks&) = delete;
    Clicks& operator=(const Clicks&) = delete;
    ~Clicks() {
        thread_.join();
        application_.onPaint = nullptr;
        application_.onPainted = nullptr;
    }

    bool Done() const { return static_cast<int>(answered_.size()) >= count_; }

    void Print(const char* what) {
        std::sort(raised_.begin(), raised_.end());
        std::sort(answered_.begin(), answered_.end());
        const std::size_t of99 = answered_.size() * 99 / 100 - 1;
        std::printf(
            "click, 8 sensors, %s: event within %.1f ms, answer painted within %.1f ms, "
            "99 of 100 of %d; half within %.1f ms, the slowest %.1f ms\n",
            what, raised_[of99], answered_[of99], count_, Median(answered_), answered_.back());
    }

private:
    static double Since(Steady::time_point moment) {
        return std::chrono::duration<double, std::milli>(Steady::now() - moment).count();
    }
    QString Expected() const { return QString::number(answered_.size() + 1); }

    void Send() {
        std::mt19937 random(1);
        std::uniform_int_distribution<int> pause(5'000, 45'000);  // us
        const QPointF place = QRectF(button_.rect()).center();
        for (int i = 0; i < count_; ++i) {
            std::this_thread::sleep_for(std::chrono::microseconds(pause(random)));
            waiting_ = true;
            sent_ = Steady::now();
            for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
                const bool down = type == QEvent::MouseButtonPress;
                const Qt::MouseButtons held = down ? Qt::LeftButton : Qt::NoButton;
                QCoreApplication::postEvent(
                    &button_, new QMouseEvent(type, place, place, Qt::LeftButton, held, {}));
            }
            while (waiting_) std::this_thread::sleep_for(milliseconds(1));
        }
    }

    WatchedApplication& application_;
    QPushButton& button_;
    QLabel& answer_;
    int count_;
    std::vector<double> raised_, answered_;  // ms
    bool seen_ = false;
    Steady::time_point sent_;  // handed over by posting the event
    std::atomic<bool> waiting_{false};
    std::thread thread_;
};

// Eight virtual sensors, at the speed of their settings or at once.
void TimeClicks(WatchedApplication& application, const char* what, const char* duration) {
    const test::TempFolder folder;
    std::string scenario = "source generator 0 dBm\n" + std::string(duration) + "\n";
    for (int i = 0; i < 8; ++i)
        scenario += "sensor PS-101 " + util::TrimmedNumberText(std::int64_t{100001 + i}) +
                    "\n    sees generator -10 dB\n";
    folder.Put("bench.scenario", scenario);
    qputenv("KELVRA_BENCH", folder.Path("bench.scenario").c_str());
    DesktopRun run(KELVRA_VIRTUAL_SENSORS);
    if (run.kelvra.table.simulationMode) {
        std::printf("click: no virtual sensors in %s\n", KELVRA_VIRTUAL_SENSORS);
        return;
    }
    benchmarks::RunEvents(milliseconds(1000));
    std::optional<Clicks> clicks;  // from the first pass on
    run.Measure([&] {
        if (!clicks && run.kelvra.state.passes > 0) clicks.emplace(application, run, ClickCount);
        return clicks && clicks->Done();
    });
    clicks->Print(what);
    std::printf("    meanwhile %lld passes\n", static_cast<long long>(run.kelvra.state.passes));
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    WatchedApplication application(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const std::string only = argc > 1 ? argv[1] : "";
    if (only.empty() || only == "passes") TimePasses();
    if (only.empty() || only == "memory") WatchMemory();
    if (only.empty() || only == "idle") WatchIdling(application);
    if (only.empty() || only == "clicks") {
        TimeClicks(application, "measuring as set", "");
        TimeClicks(application, "at full speed", "duration 0");
    }
    return 0;
}
