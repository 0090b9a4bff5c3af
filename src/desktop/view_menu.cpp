// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/view_menu.h"

#include <algorithm>

namespace kelvra::desktop {

ViewMenu::ViewMenu(Preferences& preferences, const ViewParts& parts)
    : preferences_(preferences), parts_(parts), tables_{&parts.results.Table(), &parts.formulas} {
    UseScheme(preferences_.Colours());
    for (GridWidget* table : tables_) Keep(*table);
    parts_.menu.addSeparator();
    AddSizes();
    AddScreen();
    AddColours();
    SetFitted(preferences_.Fitted(parts_.results.Table().objectName()));
    parts_.onColours();
}

void ViewMenu::Keep(GridWidget& table) {
    table.SetZoom(preferences_.Zoom(table.objectName()));
    table.SetOwnWidths(preferences_.Widths(table.objectName()));
    table.onWheel = [this, &table] { SetZoom(table, table.Zoom()); };
    table.onOwnWidth = [this, &table] {
        preferences_.SetWidths(table.objectName(), table.OwnWidths());
    };
}

void ViewMenu::AddSizes() {
    fit_ = parts_.menu.addAction("&Fit readings");
    fit_->setCheckable(true);
    fit_->setToolTip("Shows the results as large as the window allows");
    QObject::connect(fit_, &QAction::triggered, [this](bool on) { SetFitted(on); });
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
    for (const auto& entry : entries) {
        QAction* action = parts_.menu.addAction(entry.text);
        QList<QKeySequence> keys;
        for (const char* key : entry.keys) keys << QKeySequence(key);
        action->setShortcuts(keys);
        QObject::connect(action, &QAction::triggered,
                         [this, steps = entry.steps] { SetZoom(Meant(), steps(Meant().Zoom())); });
    }
}

void ViewMenu::AddScreen() {
    QAction* full = parts_.menu.addAction("F&ull screen");
    full->setCheckable(true);
    full->setShortcut(QKeySequence("F11"));
    QObject::connect(full, &QAction::triggered,
                     [this](bool on) { parts_.frame.ShowFullScreen(on); });
}

void ViewMenu::AddColours() {
    QMenu* colours = parts_.menu.addMenu("&Colours");
    auto* group = new QActionGroup(colours);
    for (const Scheme scheme : Schemes) {
        QAction* entry = group->addAction(colours->addAction(NameOf(scheme)));
        entry->setCheckable(true);
        entry->setChecked(scheme == CurrentScheme());
        QObject::connect(entry, &QAction::triggered, [this, scheme] {
            UseScheme(scheme);
            preferences_.SetColours(scheme);
            parts_.onColours();
        });
    }
}

void ViewMenu::SetFitted(bool fitted) {
    fit_->setChecked(fitted);
    parts_.results.SetFitted(fitted);
    const QString table = parts_.results.Table().objectName();
    if (preferences_.Fitted(table) != fitted) preferences_.SetFitted(table, fitted);
}

// A size that the user chooses takes the place of the largest that fits.
void ViewMenu::SetZoom(GridWidget& table, int steps) {
    if (table.Fitted()) SetFitted(false);
    table.SetZoom(steps);
    preferences_.SetZoom(table.objectName(), table.Zoom());
}

GridWidget& ViewMenu::Meant() const {
    const auto focused = std::find_if(tables_.begin(), tables_.end(),
                                      [](const GridWidget* table) { return table->hasFocus(); });
    return focused == tables_.end() ? *tables_.front() : **focused;
}

}  // namespace kelvra::desktop
