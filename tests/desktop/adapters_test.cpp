// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest>
#include <functional>

#include "desktop/qt_dialogs.h"
#include "desktop/qt_events.h"
#include "desktop/room.h"
#include "desktop/simple_adapters.h"

namespace kelvra::desktop {

class AdapterTest : public QObject {
    Q_OBJECT

    struct Counting : Adapter {
        explicit Counting(int& count) : updates(count) {}
        void Update() override { ++updates; }
        int& updates;
    };

private slots:
    void ManyChangesWakeTheMirrorOnceAndNoChangeNever() {
        Room room;
        controls::Label label(room.window, "L");
        controls::Label other(room.window, "O");
        int updates = 0;
        int wakes = 0;
        room.mirror.Add(label, std::make_unique<Counting>(updates));
        room.mirror.Flush();
        const auto wake = room.changes.onFirst;
        room.changes.onFirst = [&] { ++wakes, wake(); };
        for (const int frame : {1, 2}) {
            for (int i = 0; i < 1000; ++i) {
                label.caption = std::to_string(i);
                other.caption = std::to_string(i);
            }
            QCOMPARE(updates, frame);
            QTRY_COMPARE(updates, frame + 1);
            QCOMPARE(wakes, frame);
        }
        label.caption = "999";
        room.mirror.Flush();
        QCOMPARE(updates, 3);
        QCOMPARE(wakes, 2);
    }

    void WhatAPersonCausesIsShownWithTheNextEvents() {
        Room room;
        controls::Button button(room.window, "B");
        QPushButton widget;
        room.mirror.Add(button, std::make_unique<ButtonAdapter>(button, widget));
        button.click.Connect([&] { button.caption = "pressed"; });
        QTest::mouseClick(&widget, Qt::LeftButton);
        QCoreApplication::processEvents();
        QCOMPARE(widget.text(), "pressed");
    }

    void APersonsActRaisesOneEventAndTheProgramsChangeNone() {
        Room room;
        controls::MenuItem item(room.window, "M", "Old");
        controls::List list(room.window, "L", {{"one", 1}, {"two", 2}}, 0);
        QWidget parent;
        QAction action;
        action.setCheckable(true);
        QComboBox box(&parent);
        int events = 0;
        for (controls::Event<>* event : {&item.click, &list.click})
            event->Connect([&] { ++events; });
        room.mirror.Add(item, std::make_unique<MenuItemAdapter>(item, action));
        room.mirror.Add(list, std::make_unique<ListAdapter>(list, box));
        const auto chooseTwo = [&] {
            QTest::keyClick(&box, Qt::Key_Down);
            QCOMPARE(list.Data(), 2);
        };
        const struct {
            const char* name;
            std::function<void()> act;
            std::function<void()> change;
            std::function<bool()> shown;
        } cases[] = {
            {"menu entry", [&] { action.trigger(); },
             [&] { item.caption = "New", item.checked = true, item.enabled = false; },
             [&] { return action.text() == "New" && action.isChecked() && !action.isEnabled(); }},
            {"list, chosen", chooseTwo, [&] { list.Preselect(0); },
             [&] { return box.currentIndex() == 0; }},
            {"list, filled", chooseTwo,
             [&] {
                 list.Fill({{"three", 3}});
             },
             [&] { return box.itemText(0) == "three" && box.currentIndex() < 0; }},
        };
        for (const auto& c : cases) {
            events = 0;
            c.act();
            QVERIFY2(events == 1, c.name);
            c.change();
            QVERIFY2(!c.shown(), c.name);
            room.mirror.Flush();
            QVERIFY2(c.shown(), c.name);
            QVERIFY2(events == 1, c.name);
        }
    }

    void LabelsPicturesAndFramesShowTheirRecords() {
        Room room;
        controls::Label label(room.window, "L");
        controls::Picture picture(room.window, "P", "busy1");
        controls::Frame frame(room.window, "F");
        QWidget parent;
        QLabel labelWidget(&parent);
        QLabel pictureWidget(&parent);
        QFrame frameWidget(&parent);
        room.mirror.Add(label, std::make_unique<LabelAdapter>(label, labelWidget));
        room.mirror.Add(picture, std::make_unique<PictureAdapter>(picture, pictureWidget, 20));
        room.mirror.Add(frame, std::make_unique<FrameAdapter>(frame, frameWidget));
        const QImage first = pictureWidget.pixmap().toImage();
        label.caption = "<b>two</b>\r\nlines \xFF";
        label.tooltip = "why";
        picture.image = "busy2";
        frame.visible = false;
        room.mirror.Flush();
        QCOMPARE(labelWidget.text(), QString("<b>two</b>\nlines \uFFFD"));
        QCOMPARE(labelWidget.textFormat(), Qt::PlainText);
        QCOMPARE(labelWidget.accessibleName(), labelWidget.text());
        QCOMPARE(labelWidget.toolTip(), "why");
        QVERIFY(pictureWidget.pixmap().toImage() != first);
        QVERIFY(!frameWidget.isVisibleTo(&parent));
    }

    void AClockOfItsOwnMovesOnToTheNextTimerAndWithTheRounds() {
        platform::SetClock clock({2005, 3, 7, 12, 0, 0, 0});
        QtEvents events(clock, &clock);
        int ticks = 0;
        events.StartTimer(std::chrono::milliseconds(20), [&] { ++ticks; });
        for (int i = 0; ticks == 0 && i < 1000; ++i)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCOMPARE(clock.Monotonic(), platform::Duration(std::chrono::milliseconds(20)));
        for (int round = 1; round <= 20; ++round) {
            QCOMPARE(ticks, 1);
            events.DoEvents({});
        }
        QCOMPARE(ticks, 2);
    }

    void FileFiltersAreTranslatedPairByPair() {
        const struct {
            const char* filter;
            const char* shown;
        } cases[] = {
            {"Text (*.txt)|*.txt|All files (*.*)|*.*", "Text (*.txt);;All files (*)"},
            {"Text|*.txt", "Text (*.txt)"},
            {"Text (*.txt)|*.txt|Half", "Text (*.txt)"},
            {"", ""},
        };
        for (const auto& c : cases) QCOMPARE(ToolkitFilter(c.filter), QString(c.shown));
    }
};

std::unique_ptr<QObject> AdapterTests() {
    return std::make_unique<AdapterTest>();
}

}  // namespace kelvra::desktop

#include "adapters_test.moc"
