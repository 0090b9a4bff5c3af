// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QtTest>
#include <functional>

#include "desktop/colour_roles.h"
#include "desktop/room.h"
#include "desktop/widget_maker.h"

namespace kelvra::desktop {

class EntriesTest : public QObject {
    Q_OBJECT

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
            Open();
            return made;
        }
        void Open() {
            widget.show();
            QApplication::setActiveWindow(&widget);
            QCoreApplication::processEvents();
        }
        QStringList Taken() { return std::exchange(events, {}); }
    };

private slots:
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
        controls::OptionGroup group(room.window, "G", {"one", "two", "three"});
        Page page(room);
        group.At(1).enabled = false;
        group.At(1).tooltip = "not now";
        const auto options = page.Show(group)->findChildren<QRadioButton*>();
        page.Hear(group.click, "click");
        QCOMPARE(options.at(1)->toolTip(), "not now");
        options.at(0)->setFocus();
        QTest::keyClick(options.at(0), Qt::Key_Down);
        QCOMPARE(group.Selected(), 2);
        QCOMPARE(page.Taken().size(), 1);
        group.SetSelected(0);
        room.mirror.Flush();
        QVERIFY(options.at(0)->isChecked() && !options.at(2)->isChecked());
        QCOMPARE(page.Taken().size(), 1);
    }

    void AFieldIsARowAndItsLetterLeadsToItsEditor() {
        Room room;
        controls::TextField text(room.window, "T", {"lblT", "Up & down", "dB"});
        controls::CheckField check(room.window, "C", {}, "On");
        controls::OptionField options(room.window, "O", {"lblO", "Slope"},
                                      std::vector<std::string>{"up", "down"});
        Page page(room);
        text.access.mnemonic = 'd';
        options.access.mnemonic = 'S';
        options.SetSelected(1);
        for (controls::Control* field :
             std::initializer_list<controls::Control*>{&text, &check, &options})
            page.maker.AddRow(*page.rows, *field);
        page.Open();
        const auto label = [&](const char* name) { return page.widget.findChild<QLabel*>(name); };
        QCOMPARE(label("lblT")->text(), "Up && &down");
        QCOMPARE(label("lblTUnit")->text(), "dB");
        QCOMPARE(page.widget.findChildren<QLabel*>().size(), 3);
        QCOMPARE(page.widget.findChild<QLineEdit*>("T")->accessibleName(), "Up & down");
        QTest::keyClick(&page.widget, Qt::Key_S, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), "O(1)");
        QTest::keyClick(&page.widget, Qt::Key_D, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget()->objectName(), "T");
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
            QCOMPARE(widget.palette().color(c.back), ToolkitColour(controls::DarkBlue));
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

std::unique_ptr<QObject> EntriesTests() {
    return std::make_unique<EntriesTest>();
}

}  // namespace kelvra::desktop

#include "entries_test.moc"
