// SPDX-License-Identifier: GPL-3.0-or-later
// The main window as a screen reader meets it: roles, names and states, a line for each, compared
// with a file. Layout helpers without a name of their own are left out.
#include <QAccessible>
#include <QFile>

#include "desktop/running_desktop.h"
#include "ui/result_columns.h"

namespace kelvra::desktop {

class AccessibilityTest : public QObject {
    Q_OBJECT

    static QString States(const QAccessible::State& state) {
        QStringList words;
        const struct {
            bool is;
            const char* word;
        } all[] = {
            {state.disabled != 0, "disabled"},   {state.invisible != 0, "hidden"},
            {state.checkable != 0, "checkable"}, {state.checked != 0, "checked"},
            {state.editable != 0, "editable"},
        };
        for (const auto& one : all)
            if (one.is) words << one.word;
        return words.isEmpty() ? QString() : " (" + words.join(", ") + ")";
    }

    static const char* RoleName(QAccessible::Role role) {
        switch (role) {
            case QAccessible::Button:
                return "button";
            case QAccessible::ComboBox:
                return "list";
            case QAccessible::Table:
                return "table";
            case QAccessible::Cell:
                return "cell";
            case QAccessible::ColumnHeader:
                return "column";
            case QAccessible::RowHeader:
                return "row";
            case QAccessible::StaticText:
                return "text";
            case QAccessible::Graphic:
                return "picture";
            case QAccessible::MenuBar:
                return "menu bar";
            case QAccessible::MenuItem:
                return "menu";
            default:
                return nullptr;
        }
    }

    // What the label beside it says.
    static QString Labels(const QAccessibleInterface& node) {
        QString text;
        for (const auto& relation : node.relations(QAccessible::Label))
            text += " labelled \"" + relation.first->text(QAccessible::Name) + '"';
        return text;
    }

    // Cells that say nothing are left out.
    static void List(QAccessibleInterface* node, const QString& indent, QString& tree) {
        if (node == nullptr) return;
        const QString name = node->text(QAccessible::Name).simplified();
        const QString about = node->text(QAccessible::Description).simplified();
        const char* role = RoleName(node->role());
        const bool says = !name.isEmpty() || !about.isEmpty();
        const bool listed = role != nullptr && says;
        if (listed)
            tree += indent + role + " \"" + name + '"' + Labels(*node) +
                    (about.isEmpty() ? "" : " [" + about + "]") + States(node->state()) + '\n';
        if (node->role() == QAccessible::ComboBox) return;  // its entries
        for (int child = 0; child < node->childCount(); ++child)
            List(node->child(child), listed ? indent + "  " : indent, tree);
    }

private slots:
    void TheTreeIsThatOfTheFile() {
        RunningDesktop running;
        QString tree;
        List(QAccessible::queryAccessibleInterface(&running.Main()), "", tree);
        QFile expected(EXPECTED_TREE);
        QVERIFY(expected.open(QIODevice::ReadOnly));
        const QString known = QString::fromUtf8(expected.readAll());
        if (tree != known) qWarning().noquote() << tree;
        QVERIFY(tree == known);
    }

    void ARowSaysWhetherItsSensorIsOn() {
        RunningDesktop running;
        auto* table = QAccessible::queryAccessibleInterface(&running.Results())->tableInterface();
        for (const char* said :
             {"off, sensor 2, PS-106 (checkable)", "on, sensor 2, PS-106 (checkable, checked)"}) {
            ClickCell(running.Results(), 1, ui::NameColumn);
            running.desktop.Painter().Flush();
            const QAccessibleInterface* name = table->cellAt(1, ui::NameColumn);
            QCOMPARE(name->text(QAccessible::Description) + States(name->state()), said);
        }
    }
};

std::unique_ptr<QObject> AccessibilityTests() {
    return std::make_unique<AccessibilityTest>();
}

}  // namespace kelvra::desktop

#include "accessibility_test.moc"
