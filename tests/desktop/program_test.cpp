// SPDX-License-Identifier: GPL-3.0-or-later
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>

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

    static void TypeInto(GridWidget& grid, int row, int column, const char* text) {
        ClickCell(grid, row, column);
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCoreApplication::processEvents();  // the editor closes later
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

    void AnEditedFormulaIsComputed() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        auto& grid = running.Find<GridWidget>("CalcGrid");
        TypeInto(grid, 0, 1, "X1dB");
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
        QTRY_COMPARE(said, "No operational sensor selected");
    }

    void WhatOpensAWindowThatIsNotThereIsDisabledForThisFrontEndOnly() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        auto& form = running.kelvra.forms.mdiMain;
        form.FileSaveData.enabled = true;
        form.Show_Settings.tooltip = "";
        form.Show_Settings.MarkChanged();
        running.desktop.Painter().Flush();
        QStringList disabled;
        for (QAction* menu : running.Main().menuBar()->actions())
            for (QAction* entry : menu->menu()->actions())
                if (!entry->isEnabled()) disabled << entry->text() + ": " + entry->toolTip();
        const QString why = ": This window comes with a later version";
        QCOMPARE(disabled, (QStringList{"&Record Data..." + why, "Settings always on &top" + why,
                                        "&About" + why}));
        const auto& settings = running.Find<QPushButton>("Show_Settings");
        QVERIFY(!settings.isEnabled() && form.Show_Settings.enabled);
        QCOMPARE(": " + settings.toolTip(), why);
    }

    void KeysZoomTheTableWithTheFocusAndTheNextRunKeepsIt() {
        const QTemporaryDir data;
        const struct {
            Qt::Key key;
            Qt::KeyboardModifiers with;
            int zoom;
        } cases[] = {
            {Qt::Key_Plus, {}, 1},  {Qt::Key_Plus, Qt::KeypadModifier, 2},
            {Qt::Key_0, {}, 0},     {Qt::Key_Minus, {}, -1},
            {Qt::Key_Equal, {}, 0}, {Qt::Key_Equal, {}, 1},
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
