// SPDX-License-Identifier: GPL-3.0-or-later
// What the setup dialog costs: showing another sensor's settings in all fields, compared with
// setting the same texts and marks on bare widgets, without and with painting; and storing one
// keystroke. Takes some seconds and prints figures. Needs no display unless QT_QPA_PLATFORM names
// one.
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <variant>
#include <vector>

#include "desktop_run.h"
#include "process_figures.h"
#include "ui/setup_rows.h"

namespace {

using namespace kelvra;
using benchmarks::DesktopRun;
using benchmarks::ProcessorTime;
using benchmarks::WatchedApplication;

constexpr int Rounds = 7;
constexpr int Changes = 200;
constexpr int Keystrokes = 20'000;

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Changes every setting that the dialog shows to another value that it can show.
void ChangeAll(sensors::SensorSettings& settings) {
    for (const ui::SetupRow& row : ui::SetupRows())
        std::visit(
            [&](auto member) {
                auto& value = settings.*member;
                if constexpr (std::is_same_v<decltype(value), bool&>)
                    value = !value;
                else
                    value =
                        static_cast<std::remove_reference_t<decltype(value)>>(value == 1 ? 2 : 1);
            },
            row.member);
    settings.Mode = sensors::ContinuousAverage;  // both sensors show the same frames
}

// What the dialog shows for a sensor, by kind of control.
struct Shown {
    std::vector<QString> texts;
    std::vector<bool> marks;
    std::vector<int> choices;  // lists, then groups
};

Shown Read(forms::SetupForm& form) {
    Shown shown;
    for (const ui::SetupRow& row : ui::SetupRows())
        std::visit(
            [&](auto field) {
                const auto& control = form.*field;
                if constexpr (requires {
                                  control.Text();
                                  control.fault;
                              })
                    shown.texts.push_back(QString::fromStdString(control.Text()));
                else if constexpr (requires { control.Checked(); })
                    shown.marks.push_back(control.Checked());
                else if constexpr (requires { control.Index(); })
                    shown.choices.push_back(control.Index());
                else
                    shown.choices.push_back(control.Selected());
            },
            row.field);
    return shown;
}

// As many boxes, marks and lists in a window. A group of options counts as a list here, which is
// less than it is.
class BareDialog {
public:
    explicit BareDialog(const Shown& shown) {
        auto* grid = new QGridLayout(&window_);
        const auto add = [&](QWidget* widget) {
            grid->addWidget(widget, grid->count() / 4, grid->count() % 4);
        };
        for (std::size_t i = 0; i < shown.texts.size(); ++i)
            add(texts_.emplace_back(new QLineEdit));
        for (std::size_t i = 0; i < shown.marks.size(); ++i)
            add(marks_.emplace_back(new QCheckBox));
        for (std::size_t i = 0; i < shown.choices.size(); ++i) {
            add(lists_.emplace_back(new QComboBox));
            lists_.back()->addItems({"one", "two", "three", "four", "five"});
        }
        window_.show();
    }

    void Show(const Shown& shown) {
        for (std::size_t i = 0; i < texts_.size(); ++i) texts_[i]->setText(shown.texts[i]);
        for (std::size_t i = 0; i < marks_.size(); ++i) marks_[i]->setChecked(shown.marks[i]);
        for (std::size_t i = 0; i < lists_.size(); ++i)
            lists_[i]->setCurrentIndex(shown.choices[i]);
    }

private:
    QWidget window_;
    std::vector<QLineEdit*> texts_;
    std::vector<QCheckBox*> marks_;
    std::vector<QComboBox*> lists_;
};

// Processor time of a change in us; if wanted, each is painted before the next.
template <class Change>
double PerChange(bool painted, const Change& change) {
    const double before = ProcessorTime();
    for (int i = 0; i < Changes; ++i) {
        change(i % 2);
        if (painted) QCoreApplication::processEvents();
    }
    return 1e6 * (ProcessorTime() - before) / Changes;
}

void TimeChoices(DesktopRun& run) {
    forms::SetupForm& form = run.kelvra.forms.setupForm;
    const auto choose = [&](int sensor) {
        form.SensSelect.Choose(sensor);
        run.desktop.Painter().Flush();
    };
    Shown shown[2];
    for (const int sensor : {1, 0}) {
        choose(sensor);
        shown[sensor] = Read(form);
    }
    BareDialog bare(shown[0]);
    for (const bool painted : {false, true}) {
        std::vector<double> kelvra, floor;
        for (int round = 0; round < Rounds; ++round) {
            floor.push_back(PerChange(painted, [&](int sensor) { bare.Show(shown[sensor]); }));
            kelvra.push_back(PerChange(painted, choose));
        }
        std::printf("choosing another sensor%s: %.0f us, bare widgets %.0f us: %.2f times\n",
                    painted ? ", painted" : "", Median(kelvra), Median(floor),
                    Median(kelvra) / Median(floor));
    }
}

void TimeKeystrokes(DesktopRun& run) {
    controls::TextBox& box = run.kelvra.forms.setupForm.SensContAVTime;
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        const double before = ProcessorTime();
        for (int i = 0; i < Keystrokes; ++i) box.Type(i % 2 == 0 ? "12" : "123");
        times.push_back(1e6 * (ProcessorTime() - before) / Keystrokes);
    }
    std::printf("storing a keystroke: %.2f us\n", Median(times));
}

// The dialog is open, and the second sensor has other settings than the first.
void Measure() {
    DesktopRun run;
    ChangeAll(run.kelvra.table[1].settings);
    run.kelvra.forms.mdiMain.Show_Settings.Press();
    run.desktop.Painter().Flush();
    QCoreApplication::processEvents();
    TimeChoices(run);
    TimeKeystrokes(run);
}

}  // namespace

// NOLINTNEXTLINE(bugprone-exception-escape): an exception ends the program, as it should
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    WatchedApplication application(argc, argv);
    Measure();
    return 0;
}
