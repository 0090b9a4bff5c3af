// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/setup_dialog_view.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/common.h"
#include "desktop/icons.h"
#include "desktop/setup_page_views.h"
#include "ui/setup_rows.h"

namespace kelvra::desktop {

namespace {

// Keeps a box from taking the keys of undo and redo for its own text: an edit of a setting is taken
// back as a whole.
class UndoKeys final : public QObject {
public:
    explicit UndoKeys(QLineEdit& box) : QObject(&box) { box.installEventFilter(this); }

protected:
    bool eventFilter(QObject* box, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride) return QObject::eventFilter(box, event);
        const auto& key = static_cast<const QKeyEvent&>(*event);
        return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
    }
};

void LeaveUndoKeys(QLineEdit& box) {
    new UndoKeys(box);
}

constexpr int ErrorLines = 4;
constexpr int SignSize = 20;  // logical pixels

}  // namespace

SetupDialogView::SetupDialogView(forms::SetupForm& form, Mirror& mirror, QWidget& area,
                                 const QList<QAction*>& shared)
    : form_(form), maker_(mirror), window_(form, area, Build()) {
    AddPageKeys();
    window_.addActions(shared);
    for (const ui::SetupRow& row : ui::SetupRows())
        if (const auto* field = std::get_if<controls::TextField forms::SetupForm::*>(&row.field))
            LeaveUndoKeys(*window_.findChild<QLineEdit*>((form_.**field).Name().c_str()));
}

QWidget* SetupDialogView::Build() {
    auto* all = new QWidget;
    auto* column = new QVBoxLayout(all);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Margin);
    column->addWidget(BuildHeader());
    column->addWidget(BuildPages(), 1);
    column->addWidget(BuildErrorStrip());
    return all;
}

QWidget* SetupDialogView::BuildHeader() {
    QFrame* header = maker_.Make(form_.Frame1);
    auto* rows = new QVBoxLayout(header);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(Margin);
    auto* choices = new QHBoxLayout;
    choices->setSpacing(Margin);
    for (controls::ListField* list : {&form_.SensSelect, &form_.SensMode}) {
        QLabel* caption = maker_.Make(*list->captionLabel);
        QComboBox* widget = maker_.Make(*list);
        caption->setBuddy(widget);
        choices->addWidget(caption);
        choices->addWidget(widget);
        choices->addSpacing(Margin);
    }
    choices->addStretch();
    choices->addWidget(maker_.Make(form_.cmdCopySettings));
    rows->addLayout(choices);
    rows->addWidget(maker_.Make(form_.PageSelect, OptionLook::Pages));
    return header;
}

// All pages have the same place; the records show one of them.
QWidget* SetupDialogView::BuildPages() {
    auto* place = new QWidget;
    auto* cell = new QGridLayout(place);
    cell->setContentsMargins(0, 0, 0, 0);
    for (const auto make :
         {MakeGeneralPage, MakeModePage, MakeTriggerPage, MakeCorrectionPage, MakeAdvancedPage}) {
        QWidget* page = make(form_, maker_);
        KeepRoom(*page);
        cell->addWidget(page, 0, 0);
    }
    return new ContentScroll(place);
}

// The whole text, however long, can be scrolled, selected and copied.
QWidget* SetupDialogView::BuildErrorStrip() {
    QGroupBox* strip = maker_.MakeGroup(form_.InputErrorFrame);
    auto* line = new QHBoxLayout(strip);
    line->setContentsMargins(Margin, Margin / 2, Margin, Margin / 2);
    line->setSpacing(Margin);
    auto* sign = new QLabel;
    sign->setPixmap(PictureOf("inputFault", SignSize, sign->devicePixelRatioF()));
    line->addWidget(sign, 0, Qt::AlignTop);
    QLabel* text = maker_.Make(form_.lblInputError);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* scroll = new ContentScroll(text);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFixedHeight(ErrorLines * text->fontMetrics().lineSpacing());
    line->addWidget(scroll, 1);
    KeepRoom(*strip);
    return strip;
}

// As in other programs with pages.
void SetupDialogView::AddPageKeys() {
    const struct {
        const char* key;
        int step;
    } keys[] = {{"Ctrl+PgUp", -1}, {"Ctrl+PgDown", 1}};
    for (const auto& key : keys)
        new QShortcut(QKeySequence(key.key), &window_, [this, step = key.step] {
            const int pages = form_.PageSelect.Count();
            form_.PageSelect.Select((form_.PageSelect.Selected() + step + pages) % pages);
        });
}

}  // namespace kelvra::desktop
