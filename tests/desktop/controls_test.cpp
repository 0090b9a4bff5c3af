// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QRadioButton>
#include <QtTest>
#include <functional>

#include "desktop/mirror.h"
#include "desktop/schemes.h"
#include "desktop/simple_adapters.h"
#include "desktop/widget_maker.h"

namespace kelvra::desktop {

class ControlsTest : public QObject {
    Q_OBJECT

    // Outlives the records and widgets that a test puts into it.
    struct Room {
        controls::Changes changes;
        controls::Window window{changes, "W", "", {}};
        Mirror mirror{changes};
    };

    // The widgets of a test's records, in a window that has the focus, and what the records report.
    // It goes before they do.
    struct Page {
        explicit Page(Room& room) : maker(room.mirror) {}

        QStringList events;
        WidgetMaker maker;
        QWidget widget;
        QGridLayout* rows = new QGridLayout(&widget);

        void Hear(controls::Event<>& event, const QString& name) {
            event.Connect([this, name] { events << name; });
        }
        template <class Record>
        auto* Show(Record& record) {
            auto* made = maker.Make(record);
            rows->addWidget(made);
            widget.show();
            QApplication::setActiveWindow(&widget);
            QCoreApplication::processEvents();
            return made;
        }
        QStringList Taken() { return std::exchange(events, {}); }
    };

private slots:
    void APersonsActRaisesOneEventAndTheProgramsChangeNone() {
        Room room;
        controls::Button button(room.window, "B");
        controls::MenuItem item(room.window, "M", "Old");
        controls::List list(room.window, "L", {{"one", 1}, {"two", 2}}, 0);
        QWidget parent;
        QPushButton buttonWidget("Old", &parent);
        QAction action;
        action.setCheckable(true);
        QComboBox box(&parent);
        int events = 0;
        for (controls::Event<>* event : {&button.click, &item.click, &list.click})
            event->Connect([&] { ++events; });
        room.mirror.Add(button, std::make_unique<ButtonAdapter>(button, buttonWidget));
        room.mirror.Add(item, std::make_unique<MenuItemAdapter>(item, action));
        room.mirror.Add(list, std::make_unique<ListAdapter>(list, box));
        const struct {
            const char* name;
            std::function<void()> act;
            std::function<void()> change;
            std::function<bool()> shown;
        } cases[] = {
            {"button", [&] { QTest::mouseClick(&buttonWidget, Qt::LeftButton); },
             [&] { button.caption = "New", button.enabled = false; },
             [&] { return buttonWidget.text() == "New" && !buttonWidget.isEnabled(); }},
            {"menu entry", [&] { action.trigger(); },
             [&] { item.caption = "New", item.checked = true, item.enabled = false; },
             [&] { return action.text() == "New" && action.isChecked() && !action.isEnabled(); }},
            {"list",
             [&] {
                 QTest::keyClick(&box, Qt::Key_Down);
                 QCOMPARE(list.Data(), 2);
             },
             [&] { list.Preselect(0); }, [&] { return box.currentIndex() == 0; }},
        };
        for (const auto& c : cases) {
            events = 0;
            c.act();
            QVERIFY2(events == 1, c.name);
            c.change();
            QVERIFY2(!c.shown(), c.name);
            QTRY_VERIFY2(c.shown(), c.name);
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
        label.back = controls::DarkBlue;
        picture.image = "busy2";
        frame.visible = false;
        room.mirror.Flush();
        QCOMPARE(labelWidget.text(), QString("<b>two</b>\nlines \uFFFD"));
        QCOMPARE(labelWidget.textFormat(), Qt::PlainText);
        QCOMPARE(labelWidget.accessibleName(), labelWidget.text());
        QCOMPARE(labelWidget.toolTip(), "why");
        QCOMPARE(labelWidget.palette().color(QPalette::WindowText), QColor(Qt::white));
        QVERIFY(pictureWidget.pixmap().toImage() != first);
        QVERIFY(!frameWidget.isVisibleTo(&parent));
    }

    void ATextBoxTypesCommitsOnceAndKeepsItsCursor() {
        Room room;
        controls::TextBox box(room.window, "B");
        controls::TextBox other(room.window, "O");
        Page page(room);
        QLineEdit& line = *page.Show(box);
        QLineEdit& next = *page.Show(other);
        page.Hear(box.change, "change");
        page.Hear(box.commit, "commit");
        box.keyDown.Connect(
            [&](const controls::Key& key) { page.events << QString::fromStdString("key " + key); });
        const struct {
            const char* name;
            std::function<void()> act;
            const char* text;
            QStringList events;
        } cases[] = {
            {"typing",
             [&] { QTest::keyClicks(&line, "ac"); },
             "ac",
             {"key A", "change", "key C", "change"}},
            {"a change of something else",
             [&] { line.setCursorPosition(1), box.tooltip = "why"; },
             "ac",
             {}},
            {"typing on", [&] { QTest::keyClick(&line, Qt::Key_B); }, "abc", {"key B", "change"}},
            {"Enter",
             [&] { QTest::keyClick(&line, Qt::Key_Return); },
             "abc",
             {"key Enter", "commit"}},
            {"leaving after it", [&] { next.setFocus(); }, "abc", {}},
            {"a program's write", [&] { box.SetText("\xFFz"); }, "\xFFz", {"change"}},
            {"leaving after an edit",
             [&] {
                 line.setFocus(), line.end(false), QTest::keyClick(&line, Qt::Key_Backspace);
                 next.setFocus();
             },
             "\uFFFD",
             {"key Backspace", "change", "commit"}},
        };
        line.setFocus();
        for (const auto& c : cases) {
            page.Taken();
            c.act();
            room.mirror.Flush();
            QCOMPARE(std::make_pair(c.name, page.Taken()), std::make_pair(c.name, c.events));
            QVERIFY2(box.Text() == c.text, c.name);
            QVERIFY2(line.text() == QString::fromUtf8(c.text), c.name);
        }
    }

    void AListBoxShowsAllEntriesAndChoosesOne() {
        Room room;
        controls::List list(room.window, "L");
        Page page(room);
        auto* box = page.maker.MakeListBox(list);
        page.rows->addWidget(box);
        page.widget.show();
        page.Hear(list.click, "click");
        list.Fill({{"one"}, {"two"}, {"three"}});
        room.mirror.Flush();
        QCOMPARE(box->count(), 3);
        QVERIFY(box->selectedItems().isEmpty());
        list.SetIndex(2);
        room.mirror.Flush();
        QCOMPARE(box->selectedItems(), QList{box->item(2)});
        page.Taken();
        QTest::mouseClick(box->viewport(), Qt::LeftButton, {},
                          box->visualItemRect(box->item(1)).center());
        QCOMPARE(list.Text(), "two");
        QCOMPARE(page.Taken().size(), 1);
    }

    void ACheckBoxKeepsTheRulesMark() {
        Room room;
        controls::CheckBox box(room.window, "B", "On");
        Page page(room);
        QCheckBox& widget = *page.Show(box);
        page.Hear(box.click, "click");
        QTest::keyClick(&widget, Qt::Key_Space);
        QVERIFY(box.Checked());
        box.click.Connect([&] { box.SetChecked(true); });
        QTest::mouseClick(&widget, Qt::LeftButton, {}, {5, widget.height() / 2});
        room.mirror.Flush();
        QVERIFY(box.Checked());
        QVERIFY(widget.isChecked());
        QCOMPARE(page.Taken().size(), 3);
    }

    void ArrowKeysChooseAmongTheOptionsThatCanBeUsed() {
        Room room;
        controls::OptionGroup group(room.window, "G", {{"a", "one"}, {"b", "two"}, {"c", "three"}});
        Page page(room);
        group.At(1).enabled = false;
        group.At(1).tooltip = "not now";
        const auto options = page.Show(group)->findChildren<QRadioButton*>();
        page.Hear(group.click, "click");
        QCOMPARE(options.at(1)->toolTip(), "not now");
        options.at(0)->setFocus();
        QTest::keyClick(options.at(0), Qt::Key_Right);
        QCOMPARE(group.Selected(), 2);
        QCOMPARE(page.Taken().size(), 1);
        group.SetSelected(0);
        room.mirror.Flush();
        QVERIFY(options.at(0)->isChecked() && !options.at(2)->isChecked());
        QCOMPARE(page.Taken().size(), 1);
    }

    void ColoursGoToTheRolesOfTheKindAndCanBeTakenBack() {
        Room room;
        controls::Label label(room.window, "L");
        controls::Button button(room.window, "B");
        controls::TextBox box(room.window, "T");
        controls::CheckBox check(room.window, "C", "");
        controls::List list(room.window, "I");
        controls::Frame frame(room.window, "F");
        Page page(room);
        const struct {
            controls::Control& control;
            QPalette::ColorRole back, fore;
        } cases[] = {
            {label, QPalette::Window, QPalette::WindowText},
            {button, QPalette::Button, QPalette::ButtonText},
            {box, QPalette::Base, QPalette::Text},
            {check, QPalette::Window, QPalette::WindowText},
            {list, QPalette::Button, QPalette::ButtonText},
            {frame, QPalette::Window, QPalette::WindowText},
        };
        for (const auto& c : cases) {
            QWidget& widget = *page.maker.MakeAny(c.control);
            widget.setParent(&page.widget);
            const QPalette original = widget.palette();
            c.control.back = controls::DarkBlue;
            room.mirror.Flush();
            QCOMPARE(widget.palette().color(c.back),
                     PaintColour(Part::Surface, controls::DarkBlue));
            QCOMPARE(widget.palette().color(c.fore), QColor(Qt::white));
            c.control.fore = controls::Red;
            room.mirror.Flush();
            QCOMPARE(widget.palette().color(c.fore), QColor(255, 0, 0));
            c.control.back = std::nullopt;
            c.control.fore = std::nullopt;
            room.mirror.Flush();
            QVERIFY2(widget.palette() == original, c.control.Name().c_str());
            QVERIFY(!widget.autoFillBackground());
        }
    }
};

std::unique_ptr<QObject> ControlsTests() {
    return std::make_unique<ControlsTest>();
}

}  // namespace kelvra::desktop

#include "controls_test.moc"
