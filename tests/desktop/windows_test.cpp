// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAccessible>
#include <QWindow>

#include "desktop/common.h"
#include "desktop/running_desktop.h"

namespace kelvra::desktop {

class WindowTest : public QObject {
    Q_OBJECT

    // The widgets that were shown as windows of their own.
    struct ShownWindows : QObject {
        ShownWindows() { qApp->installEventFilter(this); }
        bool eventFilter(QObject* object, QEvent* event) override {
            auto* widget = qobject_cast<QWidget*>(object);
            if (event->type() == QEvent::Show && widget != nullptr && widget->isWindow())
                widgets << widget;
            return false;
        }
        QList<QWidget*> widgets;
    };

private slots:
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

    void NothingButTheFrameIsEverAWindowOfItsOwn() {
        const QTemporaryDir data;
        ShownWindows shown;
        RunningDesktop running(data);
        QCOMPARE(shown.widgets, QList<QWidget*>{&running.Main()});
    }

    void AnEdgeDraggedByAPersonStaysAndIsTheRecords() {
        const QTemporaryDir data;
        RunningDesktop running(data);
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

    void ASmallerFrameCutsNoWindowInsideIt() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        auto& inside = running.Find<QMdiSubWindow>("");
        running.Main().resize(running.Main().minimumSizeHint() + QSize(0, 60));
        QTest::qWait(1);
        QVERIFY(inside.mdiArea()->viewport()->rect().contains(inside.geometry()));
    }

    void EveryWidgetThatTakesFocusSaysWhatItIs() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        int found = 0;
        for (QWidget* widget : running.Main().findChildren<QWidget*>()) {
            if (!(widget->focusPolicy() & Qt::TabFocus) || !widget->isVisible()) continue;
            ++found;
            const auto* face = QAccessible::queryAccessibleInterface(widget);
            QVERIFY2(face != nullptr && !face->text(QAccessible::Name).isEmpty(),
                     widget->metaObject()->className() + widget->objectName().toLatin1());
        }
        QVERIFY(found >= 6);
    }

    void TabVisitsTheControlsInReadingOrder() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        running.kelvra.forms.mdiMain.StopIt.enabled = true;
        running.desktop.Painter().Flush();
        running.Start().setFocus();
        QStringList visited;
        do {
            visited << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        } while (visited.size() < 20 && QApplication::focusWidget() != &running.Start());
        visited.removeAll("");
        QCOMPARE(visited, (QStringList{"StartIt", "StopIt", "SensSyncMode", "TimeSensor_select_new",
                                       "CalcGrid", "ResultGrid"}));
    }

    void UnderlinedLettersPressTheirButtons() {
        const QTemporaryDir data;
        RunningDesktop running(data);
        for (auto* button : running.Main().findChildren<QPushButton*>()) {
            button->setEnabled(true);
            QSignalBlocker noRule(button);
            const QString text = button->text();
            const QString letter = text.mid(text.indexOf('&') + 1, 1).toUpper();
            const int key = letter.at(0).unicode();
            QTest::keyClick(&running.Main(), static_cast<Qt::Key>(key), Qt::AltModifier);
            QVERIFY2(button->isDown(), qPrintable(text));
            QTRY_VERIFY(!button->isDown());
        }
    }
};

std::unique_ptr<QObject> WindowTests() {
    return std::make_unique<WindowTest>();
}

}  // namespace kelvra::desktop

#include "windows_test.moc"
