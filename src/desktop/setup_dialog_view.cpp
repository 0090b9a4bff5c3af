// SPDX-License-Identifier: GPL-3.0-or-later
#include <QKeyEvent>
#include <QShortcut>
#include <QVBoxLayout>

#include "desktop/common.h"
#include "desktop/dialog_views.h"
#include "desktop/dialog_window.h"
#include "desktop/icons.h"
#include "desktop/setup_page_views.h"
#include "ui/setup_rows.h"

namespace kelvra::desktop {

namespace {

constexpr int ErrorLines = 3;
constexpr int SignSize = 20;  // logical pixels

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

void LeaveUndoKeys(const forms::SetupForm& form, const QWidget& content) {
    for (const ui::SetupRow& row : ui::SetupRows())
        if (const auto* field = std::get_if<controls::TextField forms::SetupForm::*>(&row.field))
            new UndoKeys(*content.findChild<QLineEdit*>((form.**field).Name().c_str()));
}

// As in other programs with pages.
void AddPageKeys(controls::OptionGroup& pages, QWidget& content) {
    const struct {
        const char* key;
        int step;
    } keys[] = {{"Ctrl+PgUp", -1}, {"Ctrl+PgDown", 1}};
    for (const auto& key : keys)
        new QShortcut(QKeySequence(key.key), &content, [&pages, step = key.step] {
            pages.Select((pages.Selected() + step + pages.Count()) % pages.Count());
        });
}

QWidget* MakeHeader(forms::SetupForm& form, WidgetMaker& maker) {
    QFrame* header = maker.Make(form.Frame1);
    auto* rows = new QVBoxLayout(header);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(Margin);
    auto* choices = new QHBoxLayout;
    choices->setSpacing(Margin);
    for (controls::ListField* list : {&form.SensSelect, &form.SensMode}) {
        QLabel* caption = maker.Make(*list->captionLabel);
        QComboBox* widget = maker.Make(*list);
        caption->setBuddy(widget);
        choices->addWidget(caption);
        choices->addWidget(widget);
        choices->addSpacing(Margin);
    }
    choices->addStretch();
    choices->addWidget(maker.Make(form.cmdCopySettings));
    rows->addLayout(choices);
    rows->addWidget(maker.Make(form.PageSelect, OptionLook::Pages));
    return header;
}

// All pages have the same place; the records show one of them.
QWidget* MakePages(forms::SetupForm& form, WidgetMaker& maker) {
    auto* place = new QWidget;
    auto* cell = new QGridLayout(place);
    cell->setContentsMargins(0, 0, 0, 0);
    for (const auto make :
         {MakeGeneralPage, MakeModePage, MakeTriggerPage, MakeCorrectionPage, MakeAdvancedPage}) {
        QWidget* page = make(form, maker);
        KeepRoom(*page);
        cell->addWidget(page, 0, 0);
    }
    return new ContentScroll(place);
}

// The whole text, however long, can be scrolled, selected and copied, with the keyboard as well.
QWidget* MakeErrorStrip(forms::SetupForm& form, WidgetMaker& maker) {
    QGroupBox* strip = maker.MakeGroup(form.InputErrorFrame);
    auto* line = new QHBoxLayout(strip);
    line->setContentsMargins(Margin, Margin / 2, Margin, Margin / 2);
    line->setSpacing(Margin);
    auto* sign = new QLabel;
    sign->setPixmap(PictureOf("inputFault", SignSize, sign->devicePixelRatioF()));
    line->addWidget(sign, 0, Qt::AlignTop);
    QPlainTextEdit* text = maker.MakeLong(form.lblInputError);
    text->setFixedHeight(ErrorLines * text->fontMetrics().lineSpacing());
    line->addWidget(text, 1);
    KeepRoom(*strip);
    return strip;
}

}  // namespace

QWidget* MakeSetupDialog(forms::SetupForm& form, WidgetMaker& maker,
                         const QList<QAction*>& shared) {
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Margin);
    column->addWidget(MakeHeader(form, maker));
    column->addWidget(MakePages(form, maker), 1);
    column->addWidget(MakeErrorStrip(form, maker));
    AddPageKeys(form.PageSelect, *content);
    content->addActions(shared);
    LeaveUndoKeys(form, *content);
    return content;
}

}  // namespace kelvra::desktop
