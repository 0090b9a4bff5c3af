// SPDX-License-Identifier: GPL-3.0-or-later
#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>

#include "desktop/common.h"
#include "desktop/running_desktop.h"

namespace kelvra::desktop {

class ProgramTest : public QObject {
    Q_OBJECT

    // The simulated sensors read about -8.7 and -4.0 dBm; the user's locale may write a comma.
    static int WholeLevel(const QTableWidget& table, int row) {
        return qRound(Cell(table, row, 2).replace(',', '.').toDouble());
    }
    static QString Cell(const QTableWidget& table, int row, int column) {
        const QTableWidgetItem* item = table.item(row, column);
        return item == nullptr ? QString() : item->text();
    }

    // Measures by click until the cell shows a text, and stops by that act. False when the act did
    // not stop it.
    static bool MeasureUntilShown(RunningDesktop& running, QTableWidget& table, int column,
                                  std::function<void()> stop) {
        QObject person;
        bool stopped = true;
        const auto shown = [&] {
            return !running.Start().isEnabled() && !Cell(table, 0, column).isEmpty();
        };
        When(person, shown, std::move(stop));
        QTimer::singleShot(10000, &person, [&] {
            stopped = false;
            running.kelvra.forms.mdiMain.StopIt.Press();
        });
        running.Click("StartIt");
        return stopped;
    }

    static void AnswerFormula(RunningDesktop& running, const char* formula) {
        QObject person;
        WhenAsked<QInputDialog>(person, [&](QInputDialog& dialog) {
            auto* line = dialog.findChild<QLineEdit*>();
            line->selectAll();
            QTest::keyClicks(line, formula);
            QTest::keyClick(line, Qt::Key_Return);
        });
        ClickCell(running.Find<GridWidget>("CalcGrid"), 0, 1);
    }

private slots:
    void StartShowsReadingsUntilStop() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        const std::function<void()> stops[] = {
            [&] { QTest::keyClick(&running.Main(), Qt::Key_F5, Qt::ShiftModifier); },
            [&] { running.Click("StopIt"); },
        };
        for (const auto& stop : stops) {
            QVERIFY(MeasureUntilShown(running, running.Results(), 2, stop));
            QVERIFY(!running.kelvra.state.commandRuns);
            running.desktop.Painter().Flush();
            QVERIFY(running.Start().isEnabled());
            QVERIFY(!running.Find<QPushButton>("StopIt").isEnabled());
            QCOMPARE(WholeLevel(running.Results(), 0), -9);
            QCOMPARE(WholeLevel(running.Results(), 1), -4);
        }
        QCOMPARE(running.kelvra.state.starts, 2);
    }

    void ANameCellSwitchesItsSensor() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        const auto& entry = running.kelvra.table[1];
        ClickCell(running.Results(), 1, 0);
        QVERIFY(!entry.enabled);
        QCOMPARE(running.kelvra.table.currentSensor, 1);
        running.desktop.Painter().Flush();
        QCOMPARE(running.Results().item(1, 0)->background().color(), ToolkitColour(controls::Grey));
        QTest::keyClick(&running.Results(), Qt::Key_Return);
        QVERIFY(entry.enabled);
    }

    void TheSensorListChoosesTheCurrentSensor() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        auto& box = running.Find<QComboBox>("TimeSensor_select_new");
        QCOMPARE(box.count(), 2);
        QTest::keyClick(&box, Qt::Key_Down);
        QCOMPARE(running.kelvra.table.currentSensor, 1);
        QCOMPARE(running.Find<QComboBox>("SensSyncMode").currentText(), "Async");
    }

    void AnEditedFormulaIsComputed() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        auto& grid = running.Find<GridWidget>("CalcGrid");
        AnswerFormula(running, "X1dB");
        QCOMPARE(running.kelvra.forms.mdiMain.CalcGrid.At(1, 1).Text(), "X1dB");
        QVERIFY(MeasureUntilShown(running, grid, 2, [&] { running.Click("StopIt"); }));
        running.desktop.Painter().Flush();
        QCOMPARE(Cell(grid, 0, 1), "X1dB");
        QCOMPARE(WholeLevel(grid, 0), -9);
    }

    void WithoutASensorStartSaysSo() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        for (const int row : {0, 1}) ClickCell(running.Results(), row, 0);
        QString said;
        WhenAsked<QMessageBox>(running.Main(), [&](QMessageBox& box) {
            said = box.text();
            QTest::mouseClick(box.button(QMessageBox::Ok), Qt::LeftButton);
        });
        running.Click("StartIt");
        QCOMPARE(said, "No operational sensor selected");
    }

    void AMenuEntryIsClickedAndKeepsTheRulesMark() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        QMenu& menu = *running.Main().menuBar()->actions().at(1)->menu();
        QAction& onTop = *menu.actions().at(0);
        QVERIFY(onTop.isChecked());
        for (const bool expected : {false, true}) {
            menu.popup({0, 0});
            QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&onTop).center());
            running.desktop.Painter().Flush();
            QCOMPARE(running.kelvra.forms.mdiMain.SettingAlwaysOnTop.checked.Get(), expected);
            QCOMPARE(onTop.isChecked(), expected);
        }
    }

    void KeysZoomTheTableWithTheFocusAndTheNextRunKeepsIt() {
        const QTemporaryDir data;
        const struct {
            Qt::Key key;
            Qt::KeyboardModifiers with;
            int zoom;
        } cases[] = {
            {Qt::Key_Plus, {}, 1},   {Qt::Key_Plus, Qt::KeypadModifier, 2},
            {Qt::Key_Equal, {}, 3},  {Qt::Key_0, {}, 0},
            {Qt::Key_Minus, {}, -1}, {Qt::Key_0, {}, 0},
            {Qt::Key_Equal, {}, 1},
        };
        {
            RunningDesktop running(data);
            running.Start().setFocus();
            const int width = running.Results().columnWidth(1);
            for (const auto& c : cases) {
                QTest::keyClick(&running.Main(), c.key, c.with | Qt::ControlModifier);
                QCOMPARE(running.Results().Zoom(), c.zoom);
            }
            QVERIFY(running.Results().columnWidth(1) > width);
            running.Find<GridWidget>("CalcGrid").setFocus();
            for (int i = 0; i < 2; ++i)
                QTest::keyClick(&running.Main(), Qt::Key_Plus, Qt::ControlModifier);
        }
        RunningDesktop running(data);
        QCOMPARE(running.Results().Zoom(), 1);
        QCOMPARE(running.Find<GridWidget>("CalcGrid").Zoom(), 2);
    }

    void ClosingTheWindowEndsAMeasurementInOrder() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        bool exitCameFirst = false;
        QTimer::singleShot(0, &running.Main(), [&] {
            const bool closed =
                MeasureUntilShown(running, running.Results(), 2, [&] { running.Main().close(); });
            exitCameFirst = closed && running.kelvra.state.exiting && running.events.HasQuit();
            if (!exitCameFirst) QCoreApplication::exit(1);
        });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(exitCameFirst);
        QVERIFY(running.kelvra.state.stopRequested);
        QVERIFY(!running.kelvra.state.measuring);
        QVERIFY(!running.kelvra.state.commandRuns);
    }
};

std::unique_ptr<QObject> ProgramTests() {
    return std::make_unique<ProgramTest>();
}

}  // namespace kelvra::desktop

#include "program_test.moc"
