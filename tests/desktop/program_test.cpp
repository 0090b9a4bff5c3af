// SPDX-License-Identifier: GPL-3.0-or-later
#include <QMenuBar>
#include <QWindow>

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

    // Measures by click until a level is shown, and stops by that act. False when the act did
    // not stop it.
    static bool MeasureUntilShown(RunningDesktop& running, const std::function<void()>& stop) {
        QObject person;
        bool stopped = true;
        const auto shown = [&] {
            return !running.Start().isEnabled() && !Cell(running.Results(), 0, 2).isEmpty();
        };
        When(person, shown, stop);
        QTimer::singleShot(10000, &person, [&] {
            stopped = false;
            running.kelvra.forms.mdiMain.StopIt.Press();
        });
        running.Click("StartIt");
        return stopped;
    }

private slots:
    void StartShowsReadingsUntilStop() {
        RunningDesktop running;
        const std::function<void()> stops[] = {
            [&] { QTest::keyClick(&running.Main(), Qt::Key_F5, Qt::ShiftModifier); },
            [&] { running.Click("StopIt"); },
        };
        for (const auto& stop : stops) {
            QVERIFY(MeasureUntilShown(running, stop));
            QVERIFY(!running.kelvra.state.commandRuns);
            running.desktop.Painter().Flush();
            QVERIFY(running.Start().isEnabled());
            QVERIFY(!running.Find<QPushButton>("StopIt").isEnabled());
            QCOMPARE(WholeLevel(running.Results(), 0), -9);
            QCOMPARE(WholeLevel(running.Results(), 1), -4);
        }
        QCOMPARE(running.kelvra.state.starts, 2);
    }

    void AFormulaIsCheckedWhileItIsTypedAndTakenBack() {
        RunningDesktop running;
        auto& grid = running.Find<GridWidget>("CalcGrid");
        const auto& record = running.kelvra.forms.mdiMain.CalcGrid;
        const auto key = [&](Qt::Key pressed, Qt::KeyboardModifiers held = {}) {
            QTest::keyClick(QApplication::focusWidget(), pressed, held);
            QCoreApplication::processEvents();
        };
        grid.setFocus();
        grid.setCurrentCell(0, 1);
        const std::string before = record.At(1, 1).Text();
        key(Qt::Key_F2);
        QTest::keyClicks(QApplication::focusWidget(), "+Y");
        QCOMPARE(record.remark->place, static_cast<int>(before.size()) + 1);
        QVERIFY(!record.remark->text.empty());
        key(Qt::Key_Escape);
        QVERIFY(record.remark->text.empty());
        QCOMPARE(record.At(1, 1).Text(), before);
        key(Qt::Key_Delete);
        QCOMPARE(record.At(1, 1).Text(), "");
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(record.At(1, 1).Text(), before);
    }

    void TheNextRunLooksAsThisOneDid() {
        const QTemporaryDir data;
        {
            RunningDesktop running(data);
            running.Main().resize(850, 555);
            for (QAction* entry : running.Main().findChildren<QAction*>())
                if (entry->text() == "Calm" || entry->text() == "&Fit readings") entry->trigger();
            running.Results().SetOwnWidths({{0, 111}});
            running.Results().onOwnWidth();
        }
        UseScheme(Scheme::Classic);
        RunningDesktop running(data);
        QCOMPARE(running.Main().size(), QSize(850, 555));
        QCOMPARE(running.kelvra.forms.mdiMain.place->width, Twips(850));
        QCOMPARE(CurrentScheme(), Scheme::Calm);
        QVERIFY(!running.Results().Fitted());
        QCOMPARE(running.Results().columnWidth(0), 111);
        UseScheme(Scheme::Classic);
    }

    void TheNextRunKeepsTheZoomOfATable() {
        const QTemporaryDir data;
        for (const int zoom : {1, 2}) {
            RunningDesktop running(data);
            running.Start().setFocus();
            QTest::keyClick(&running.Main(), Qt::Key_Plus, Qt::ControlModifier);
            QCOMPARE(running.Results().Zoom(), zoom);
        }
    }

    void TabVisitsTheControlsInReadingOrder() {
        RunningDesktop running;
        running.kelvra.forms.mdiMain.StopIt.enabled = true;
        running.desktop.Painter().Flush();
        running.Start().setFocus();
        QStringList visited;
        do {
            visited << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (visited.size() < 20 && QApplication::focusWidget() != &running.Start());
        visited.removeAll("");
        QCOMPARE(visited, (QStringList{"StartIt", "StopIt", "Show_Settings",
                                       "TimeSensor_select_new", "CalcGrid", "ResultGrid"}));
    }

    void TheFrameShowsItsRecordWithoutAnEcho() {
        controls::Changes changes;
        controls::Window record(changes, "W", "Old", {150, 150, 3000, 3000});
        record.closesByRule = true;
        int resizes = 0;
        int closes = 0;
        record.resize.Connect([&] { ++resizes; });
        record.closeRequest.Connect([&] { ++closes; });
        Mirror mirror(changes);
        FrameWindow frame(record);
        mirror.Add(record, std::make_unique<FrameWindowAdapter>(record, frame));
        record.visible = true;
        mirror.Flush();
        record.caption = "New";
        record.place = controls::Geometry{300, 300, 4500, 3750};
        mirror.Flush();
        QCoreApplication::processEvents();
        QCOMPARE(frame.windowTitle(), "New");
        QCOMPARE(frame.geometry(), QRect(20, 20, 300, 250));
        QCOMPARE(resizes, 0);

        frame.windowHandle()->setGeometry(50, 60, 320, 260);  // as the window manager does
        QCoreApplication::processEvents();
        mirror.Flush();
        QCOMPARE(frame.geometry(), QRect(50, 60, 320, 260));
        QCOMPARE(resizes, 1);
        QCOMPARE(record.place->width, 4800);
        QCOMPARE(record.place->height, 3900);

        frame.close();
        QCOMPARE(closes, 1);
        QVERIFY(frame.isVisible());
    }

    void ClosingTheWindowEndsAMeasurementInOrder() {
        RunningDesktop running;
        bool exitCameFirst = false;
        QTimer::singleShot(0, &running.Main(), [&] {
            const bool closed = MeasureUntilShown(running, [&] { running.Main().close(); });
            exitCameFirst = closed && running.kelvra.state.exiting && running.events.HasQuit();
            if (!exitCameFirst) QCoreApplication::exit(1);
        });
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY(exitCameFirst);
        QVERIFY(running.kelvra.state.stopRequested);
        QVERIFY(!running.kelvra.state.measuring);
        QVERIFY(!running.kelvra.state.commandRuns);
    }

    void AnEdgeDraggedByAPersonStaysAndIsTheRecords() {
        RunningDesktop running;
        auto& inside = running.Find<QMdiSubWindow>("");
        QTest::qWait(1);  // its first size comes later
        const auto& place = running.kelvra.forms.statusForm.place;
        const int before = place->width;
        const QPoint edge(inside.width() - 1, inside.height() / 2);
        QTest::mouseMove(&inside, edge);
        QTest::mousePress(&inside, Qt::LeftButton, {}, edge);
        const QSize wanted = inside.size() + QSize(50, 0);
        inside.resize(wanted);
        QTest::mouseRelease(&inside, Qt::LeftButton, {}, edge);
        inside.resize(wanted + QSize(10, 0));  // nobody's hand
        running.desktop.Painter().Flush();
        QCOMPARE(place->width, Twips(wanted.width()));
        QVERIFY(place->width > before);
    }

    void EveryMenuEntryCanBeUsedWhenItsRecordSaysSo() {
        RunningDesktop running;
        for (controls::Control* menu : running.kelvra.forms.mdiMain.Children())
            if (menu->GetKind() == controls::Kind::MenuItem)
                for (controls::Control* entry : menu->Children()) entry->enabled = true;
        running.desktop.Painter().Flush();
        QStringList disabled;
        for (QAction* menu : running.Main().menuBar()->actions())
            for (QAction* entry : menu->menu()->actions())
                if (!entry->isEnabled()) disabled << entry->text();
        QCOMPARE(disabled, QStringList());
    }
};

std::unique_ptr<QObject> ProgramTests() {
    return std::make_unique<ProgramTest>();
}

}  // namespace kelvra::desktop

#include "program_test.moc"
