// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/graph_menu.h"

#include <QMenu>
#include <QPointer>

#include "controls/visit.h"
#include "desktop/common.h"
#include "desktop/graph_picture.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

void AskAndSave(GraphWidget& graph, const std::string& name, QtDialogs& dialogs) {
    platform::FileQuestion question;
    question.title = "Save picture";
    question.filter = "Pictures (*.png)|*.png|Drawings (*.svg)|*.svg";
    question.proposed = name + ".png";
    question.save = true;
    dialogs.AskFile(question, [still = QPointer(&graph), &dialogs](const auto& file) {
        if (!file || still == nullptr) return;
        const std::string reason = SavePicture(*still, file->path);
        if (!reason.empty())
            dialogs.Message({}, "The file could not be saved.\r\n" + file->path + "\r\n" + reason,
                            platform::MessageIcon::Exclamation);
    });
}

void AddEntries(QMenu& menu, const controls::MenuItem& entries) {
    for (controls::Control* child : entries.Children()) {
        auto* item = controls::As<controls::MenuItem>(*child);
        if (item == nullptr || !item->visible) continue;
        QAction* action =
            menu.addAction(MarkedText(*item, item->caption) + (item->opensDialog ? "..." : ""),
                           [item] { item->Press(); });
        action->setEnabled(item->enabled);
        action->setToolTip(Shown(item->tooltip.Get()));
    }
}

}  // namespace

void GiveGraphMenu(GraphWidget& graph, const controls::MenuItem& entries, QtDialogs& dialogs) {
    graph.onMenu = [&graph, &entries, &dialogs](const QPoint& place) {
        auto* menu = new QMenu(&graph);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->setToolTipsVisible(true);
        menu->addAction("&Copy picture", [&graph] { CopyPicture(graph); });
        menu->addAction("&Save picture...", [&graph, &entries, &dialogs] {
            AskAndSave(graph, entries.caption.Get(), dialogs);
        });
        menu->addSeparator();
        AddEntries(*menu, entries);
        if (graph.Record().Zoomed()) {
            menu->addSeparator();
            menu->addAction("Sho&w all", [&graph] { graph.Record().ZoomOut(); });
        }
        menu->popup(place);
    };
}

}  // namespace kelvra::desktop
