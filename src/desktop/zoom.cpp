// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/zoom.h"

#include <algorithm>
#include <utility>

namespace kelvra::desktop {

Zoom::Zoom(Preferences& preferences, QMenu& menu, std::vector<GridWidget*> tables)
    : preferences_(preferences), tables_(std::move(tables)) {
    for (GridWidget* table : tables_) {
        table->SetZoom(preferences_.Zoom(table->objectName()));
        table->onWheel = [this, table] { Set(*table, table->Zoom()); };
    }
    const struct {
        const char* text;
        std::vector<const char*> keys;
        int (*steps)(int now);
    } entries[] = {
        // "+" is a shifted "=" on many keyboards.
        {"&Larger readings", {"Ctrl++", "Ctrl+="}, [](int now) { return now + 1; }},
        {"&Smaller readings", {"Ctrl+-"}, [](int now) { return now - 1; }},
        {"&Normal readings", {"Ctrl+0"}, [](int) { return 0; }},
    };
    menu.addSeparator();
    for (const auto& entry : entries) {
        QAction* action = menu.addAction(entry.text);
        QList<QKeySequence> keys;
        for (const char* key : entry.keys) keys << QKeySequence(key);
        action->setShortcuts(keys);
        QObject::connect(action, &QAction::triggered,
                         [this, steps = entry.steps] { Set(Meant(), steps(Meant().Zoom())); });
    }
}

GridWidget& Zoom::Meant() const {
    const auto focused = std::find_if(tables_.begin(), tables_.end(),
                                      [](const GridWidget* table) { return table->hasFocus(); });
    return focused == tables_.end() ? *tables_.front() : **focused;
}

void Zoom::Set(GridWidget& table, int steps) {
    table.SetZoom(steps);
    preferences_.SetZoom(table.objectName(), table.Zoom());
}

}  // namespace kelvra::desktop
