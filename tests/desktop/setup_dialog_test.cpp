// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QWheelEvent>

#include "desktop/running_desktop.h"

namespace kelvra::desktop {

class SetupDialogTest : public QObject {
    Q_OBJECT

    // The program with its setup dialog open.
    struct Opened : RunningDesktop {
        Opened() { Open(); }
        explicit Opened(const QTemporaryDir& data) : RunningDesktop(data) { Open(); }
        void Open() {
            Click("Show_Settings");
            Painted();
        }
        template <class Widget>
        Widget& In(const char* name) {
            return *SetupDialog().findChild<Widget*>(name);
        }
        forms::SetupForm& Form() { return kelvra.forms.setupForm; }
        sensors::SensorSettings& Settings() { return kelvra.table[0].settings; }
        void Painted() {
            desktop.Painter().Flush();
            QCoreApplication::processEvents();
        }
        // Names of the controls that the Tab key goes through, from the sensor list on.
        QStringList Visited() {
            QApplication::setActiveWindow(&SetupDialog());
            QWidget* first = &In<QComboBox>("SensSelect");
            first->setFocus();
            QStringList names;
            do {
                names << QApplication::focusWidget()->objectName();
                QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            } while (names.size() < 100 && QApplication::focusWidget() != first);
            return names;
        }
    };

    static void CollectUsable(controls::Control& control, QStringList& names) {
        const bool focusable = dynamic_cast<controls::Focusable*>(&control) != nullptr ||
                               control.GetKind() == controls::Kind::List;
        const auto* option = dynamic_cast<const controls::Option*>(&control);
        const bool chosen = option == nullptr || option->Checked();
        if (focusable && chosen && control.EffectivelyEnabled() && control.EffectivelyVisible())
            names << QString::fromStdString(control.Name());
        for (controls::Control* child : control.Children()) CollectUsable(*child, names);
    }

private slots:
    void TheTabKeyReachesWhateverCanBeUsedOnEachPage() {
        Opened opened;
        for (const std::int32_t mode : {0, 1, 2, 3, 4}) {
            opened.Form().SensMode.Choose(opened.Form().SensMode.IndexOfData(mode));
            for (int page = 0; page < 5; ++page) {
                opened.Form().PageSelect.Select(page);
                opened.Painted();
                QStringList usable;
                CollectUsable(opened.Form(), usable);
                QStringList visited = opened.Visited();
                usable.sort();
                visited.sort();
                QCOMPARE(visited, usable);
            }
        }
    }

    void AScreenReaderHasANameForEachControl() {
        Opened opened;
        for (QWidget* widget : opened.SetupDialog().findChildren<QWidget*>()) {
            const bool entry = qobject_cast<QLineEdit*>(widget) != nullptr ||
                               qobject_cast<QComboBox*>(widget) != nullptr;
            if (entry)
                QVERIFY2(!widget->accessibleName().isEmpty(), qPrintable(widget->objectName()));
        }
    }

    void WhatIsTypedIsStoredAndATextThatIsNoNumberGetsASign() {
        Opened opened;
        opened.Form().PageSelect.Select(1);
        opened.Painted();
        auto& box = opened.In<QLineEdit>("SensContAVTime");
        const struct {
            const char* typed;
            double stored;
            bool faulty;
        } cases[] = {{"12", 0.012, false}, {"12x", 0.012, true}, {"3", 0.003, false}};
        for (const auto& c : cases) {
            box.selectAll();
            QTest::keyClicks(&box, c.typed);
            opened.Painted();
            QCOMPARE(opened.Settings().ContAVAper, c.stored);
            const QList<QAction*> signs = box.actions();
            const bool marked = !signs.isEmpty() && signs.first()->isVisible();
            QCOMPARE(marked, c.faulty);
            const std::string& fault = opened.Form().SensContAVTime.fault;
            QCOMPARE(c.faulty && box.toolTip().contains(fault.c_str()), c.faulty);
        }
    }

    void TheUndoKeysTakeBackAnEditAsAWhole() {
        Opened opened;
        opened.Form().PageSelect.Select(1);
        opened.Painted();
        QApplication::setActiveWindow(&opened.SetupDialog());
        auto& box = opened.In<QLineEdit>("SensContAVTime");
        const double before = opened.Settings().ContAVAper;
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, "123");
        QCOMPARE(opened.Settings().ContAVAper, 0.123);
        QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(opened.Settings().ContAVAper, before);
        QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(opened.Settings().ContAVAper, 0.123);
        opened.Painted();
        QCOMPARE(box.text(), "123");
    }

    void AMarkedSensorGetsTheSettings() {
        Opened opened;
        opened.Settings().ContAVAper = 0.5;
        QTest::mouseClick(&opened.In<QPushButton>("cmdCopySettings"), Qt::LeftButton);
        opened.Painted();
        GridWidget* sensors = nullptr;
        for (QWidget* widget : QApplication::allWidgets())
            if (widget->objectName() == "CopyTargets") sensors = dynamic_cast<GridWidget*>(widget);
        QVERIFY(sensors != nullptr && sensors->rowCount() == 1);
        ClickCell(*sensors, 0, 1);
        opened.Painted();
        QTest::mouseClick(sensors->window()->findChild<QPushButton*>("cmdCopy"), Qt::LeftButton);
        QCOMPARE(opened.kelvra.table[1].settings.ContAVAper, 0.5);
    }

    void TheWheelChangesNothing() {
        Opened opened;
        const sensors::SensorSettings before = opened.Settings();
        for (QWidget* widget : opened.SetupDialog().findChildren<QWidget*>()) {
            widget->setFocus();
            QWheelEvent turn({5, 5}, widget->mapToGlobal(QPointF(5, 5)), {}, {0, -120},
                             Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            QApplication::sendEvent(widget, &turn);
        }
        QVERIFY(opened.Settings() == before);
        QCOMPARE(opened.Form().PageSelect.Selected(), 0);
    }

    void TheDialogIsHiddenAndComesBackWhereItWas() {
        const QTemporaryDir data;
        QPoint place;
        for (const bool first : {true, false}) {
            Opened opened(data);
            QWidget& dialog = opened.SetupDialog();
            const QRect screen = dialog.screen()->availableGeometry();
            QVERIFY(screen.contains(dialog.geometry()));
            if (!first) QCOMPARE(dialog.pos(), place);
            place = dialog.pos() - QPoint(first ? 40 : 0, 0);
            dialog.move(place);
            QTest::keyClick(&dialog, Qt::Key_Escape);
            opened.Painted();
            QVERIFY(!dialog.isVisible() && !opened.Form().visible);
            opened.Click("Show_Settings");
            opened.Painted();
            QVERIFY(dialog.isVisible());
            QCOMPARE(dialog.pos(), place);
        }
    }

    void TheMenuLetsTheDialogStayOnTopOrNot() {
        Opened opened;
        const QPoint place = opened.SetupDialog().pos();
        for (const bool onTop : {true, false, true}) {
            const QWindow* window = opened.SetupDialog().windowHandle();
            QCOMPARE(window->transientParent() == opened.Main().windowHandle(), onTop);
            QCOMPARE(window->type() == Qt::Dialog, onTop);  // what window managers go by
            QVERIFY(opened.SetupDialog().isVisible());
            QCOMPARE(opened.SetupDialog().pos(), place);
            opened.kelvra.forms.mdiMain.SettingAlwaysOnTop.Press();
            opened.Painted();
        }
    }
};

std::unique_ptr<QObject> SetupDialogTests() {
    return std::make_unique<SetupDialogTest>();
}

}  // namespace kelvra::desktop

#include "setup_dialog_test.moc"
