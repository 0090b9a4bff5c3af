// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/table_menu.h"

#include <QMenu>

#include "desktop/common.h"
#include "ui/result_columns.h"

namespace kelvra::desktop {

namespace {

// Deletes itself when it is closed.
QMenu* MenuWithCopies(GridWidget& table) {
    auto* menu = new QMenu(&table);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setToolTipsVisible(true);
    QAction* copy = menu->addAction("&Copy", [&table] { table.Copy(false); });
    copy->setShortcut(QKeySequence::Copy);
    menu->addAction("Copy with &headings and units", [&table] { table.Copy(true); });
    return menu;
}

// Row and column count from 0 below the heading.
const controls::Grid::Cell* CellAt(GridWidget& table, int row, int column) {
    return row < 0 || column < 0 ? nullptr : &table.Record().At(row + 1, column);
}

void AddSensorEntries(QMenu& menu, GridWidget& table, int row, controls::Button& settings) {
    const controls::Grid::Cell* name = CellAt(table, row, ui::NameColumn);
    if (name == nullptr || !name->checked) return;
    const QString sensor = "sensor " + QString::number(row + 1);
    menu.addSeparator();
    menu.addAction("&Switch " + sensor + (*name->checked ? " off" : " on"),
                   [&table, row] { table.Activate(row, ui::NameColumn); });
    menu.addAction("Se&ttings of " + sensor + "...", [&table, &settings, row] {
        table.Record().PressCell(row + 1, ui::NameColumn);
        settings.Press();
    });
}

}  // namespace

void GiveResultMenu(GridWidget& table, controls::Button& settings) {
    table.onMenu = [&table, &settings](int row, int, const QPoint& place) {
        QMenu* menu = MenuWithCopies(table);
        AddSensorEntries(*menu, table, row, settings);
        menu->popup(place);
    };
}

void GiveFormulaMenu(GridWidget& table, controls::MenuItem& undo) {
    table.onMenu = [&table, &undo](int row, int column, const QPoint& place) {
        QMenu* menu = MenuWithCopies(table);
        menu->addSeparator();
        const controls::Grid::Cell* cell = CellAt(table, row, column);
        const bool editable = cell != nullptr && cell->editable;
        QAction* edit =
            menu->addAction("&Edit", [&table, row, column] { table.Edits(row, column); });
        edit->setShortcut(QKeySequence("F2"));
        QAction* empty = menu->addAction(
            "E&mpty", [&table, row, column] { table.Record().TypeCell(row + 1, column, ""); });
        empty->setShortcut(QKeySequence::Delete);
        for (QAction* entry : {edit, empty}) entry->setEnabled(editable);
        QAction* takeBack =
            menu->addAction(MarkedText(undo, undo.caption), [&undo] { undo.Press(); });
        takeBack->setShortcut(QKeySequence::Undo);
        takeBack->setEnabled(undo.enabled);
        menu->popup(place);
    };
}

}  // namespace kelvra::desktop
