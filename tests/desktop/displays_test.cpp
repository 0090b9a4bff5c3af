// SPDX-License-Identifier: GPL-3.0-or-later
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>

#include "desktop/graph_widget.h"
#include "desktop/running_desktop.h"

namespace kelvra::desktop {

class DisplaysTest : public QObject {
    Q_OBJECT

    static forms::ScopeDisp& Trace(RunningDesktop& running) {
        return running.kelvra.forms.scopeDisp;
    }
    static void Show(RunningDesktop& running) {
        Trace(running).visible = true;
        running.desktop.Painter().Flush();
        QCoreApplication::processEvents();
    }
    static ChildWindow& TraceWindow(RunningDesktop& running) {
        for (QMdiSubWindow* window : running.desktop.Main().Area().subWindowList())
            if (window->windowTitle() == "Scope Display") return static_cast<ChildWindow&>(*window);
        qFatal("There is no trace display.");
    }

    // The entry of the graph's menu, with the name that is typed then.
    static void SavePicture(RunningDesktop& running, const QString& path) {
        auto& graph = running.Find<GraphWidget>("Display");
        QContextMenuEvent asks(QContextMenuEvent::Mouse, {}, graph.mapToGlobal(QPoint()));
        QCoreApplication::sendEvent(&graph, &asks);
        auto* menu = graph.findChild<QMenu*>();
        for (QAction* entry : menu->actions())
            if (entry->text() == "&Save picture...") entry->trigger();
        delete menu;
        auto* dialog = running.Main().findChild<QFileDialog*>();
        dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
        QTest::keyClick(dialog, Qt::Key_Return);
        delete dialog;
    }

private slots:
    void ADisplayIsMadeWhenItIsShownAndLeavesTheResultsInSight() {
        RunningDesktop running;
        QVERIFY(running.Main().findChild<GraphWidget*>() == nullptr);
        Trace(running).place = controls::Geometry{6000, 60, 7500, 4500};
        Show(running);
        ChildWindow& window = TraceWindow(running);
        QCOMPARE(window.pos(), QPoint(400, 4));
        QTRY_VERIFY(running.desktop.Results().Window().geometry().right() < 400);
        window.close();
        QVERIFY(!Trace(running).visible);
        running.desktop.Painter().Flush();
        QVERIFY(!window.isVisible());
        QTRY_COMPARE(running.desktop.Results().Window().size(),
                     running.desktop.Main().Area().viewport()->size());
    }

    void TheTrendHasRoomForItsGraphBesideTheResultsAndIsReachedByKeys() {
        RunningDesktop running;
        running.kelvra.forms.mdiMain.WindowTrend.Press();
        running.desktop.Painter().Flush();
        QCoreApplication::processEvents();
        auto& graph = running.Find<GraphWidget>("TrendGraph");
        QVERIFY(graph.height() > 200);
        const auto& table = running.Find<GridWidget>("TrendValues");
        QVERIFY(table.geometry().bottom() < table.parentWidget()->height());
        QTRY_VERIFY(running.desktop.Results().Window().geometry().right() <
                    graph.mapTo(&running.desktop.Main().Area(), QPoint()).x());
        QStringList reached;
        QWidget* first = running.Main().findChild<QComboBox*>("TrendSensor");
        for (QWidget* widget = first; !reached.contains("TrendValues") && reached.size() < 20;
             widget = QApplication::focusWidget()) {
            widget->setFocus();
            reached << widget->objectName();
            QTest::keyClick(widget, Qt::Key_Tab);
        }
        QCOMPARE(reached.join(' '),
                 "TrendSensor TrendSpan TrendUnit TrendPause TrendZoom LowLimit "
                 "HighLimit ResetCounts ClearTrend TrendGraph TrendValues");
    }

    void APlaceThatTheUserHasGivenStaysAndComesBackInTheNextRun() {
        const QTemporaryDir data;
        QRect place;
        {
            RunningDesktop running(data);
            Show(running);
            ChildWindow& window = TraceWindow(running);
            QTest::mousePress(&window, Qt::LeftButton, {}, {window.width() / 2, 10});
            window.setGeometry(30, 40, 500, 300);  // as the toolkit does when the mouse moves
            QTest::mouseRelease(&window, Qt::LeftButton, {}, {window.width() / 2, 10});
            place = window.geometry();
            QVERIFY(window.PlacedByPerson());
            Trace(running).place = controls::Geometry{3000, 60, 7500, 4500};
            running.desktop.Painter().Flush();
            QCOMPARE(window.geometry(), place);
        }
        RunningDesktop running(data);
        Show(running);
        QCOMPARE(TraceWindow(running).geometry(), place);
    }

    void APictureIsSavedFromTheMenuAndAFailureNamesThePath() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        Show(running);
        SavePicture(running, data.filePath("trace.svg"));
        QVERIFY(QFile::exists(data.filePath("trace.svg")));
        QVERIFY(running.Main().findChild<QMessageBox*>() == nullptr);
        SavePicture(running, data.filePath("gone/trace.png"));
        const auto* message = running.Main().findChild<QMessageBox*>();
        QVERIFY(message != nullptr);
        QVERIFY(message->text().contains(data.filePath("gone/trace.png") + '\n'));
    }
};

std::unique_ptr<QObject> DisplaysTests() {
    return std::make_unique<DisplaysTest>();
}

}  // namespace kelvra::desktop

#include "displays_test.moc"
