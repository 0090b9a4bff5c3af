// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/notice_bar.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/common.h"
#include "desktop/elided_label.h"

namespace kelvra::desktop {

namespace {

constexpr int Lines = 2;
constexpr int NoticeIcon = 24;   // logical pixels
constexpr int TextColumns = 70;  // of the window with the whole text, in characters
constexpr int TextLines = 12;

void Copy(const QString& text) {
    QApplication::clipboard()->setText(text);
}

// Not modal: the measurement goes on, and Stop stays within reach.
void ShowWhole(const QString& text, QWidget* parent) {
    auto* dialog = new QDialog(parent);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle("Message");
    auto* layout = new QVBoxLayout(dialog);
    auto* whole = new QPlainTextEdit(text);
    whole->setReadOnly(true);
    whole->setAccessibleName("Message");
    const QFontMetrics metrics(whole->font());
    whole->setMinimumSize(TextColumns * metrics.averageCharWidth(),
                          TextLines * metrics.lineSpacing());
    layout->addWidget(whole);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    auto* copy = buttons->addButton("&Copy", QDialogButtonBox::ActionRole);
    QObject::connect(copy, &QAbstractButton::clicked, [text] { Copy(text); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::close);
    layout->addWidget(buttons);
    dialog->show();
}

QToolButton* AddButton(QHBoxLayout& row, const char* text, const char* help) {
    auto* button = new QToolButton;
    button->setText(text);
    button->setToolTip(help);
    button->setFocusPolicy(Qt::TabFocus);
    row.addWidget(button);
    return button;
}

}  // namespace

QWidget* MakeNoticeBar(forms::MDIMain& form, WidgetMaker& maker) {
    QFrame* bar = maker.Make(form.ConnectedFrame);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(maker.Make(form.picNotice, NoticeIcon));
    auto* text = new ElidedLabel(Lines);
    maker.Make(form.lblMeasAwait, text);
    row->addWidget(text, 1);
    QToolButton* copy = AddButton(*row, "Copy", "Copies the whole message");
    QObject::connect(copy, &QToolButton::clicked, [text] { Copy(text->text()); });
    QToolButton* details = AddButton(*row, "Details...", "Shows the whole message in a window");
    QObject::connect(details, &QToolButton::clicked,
                     [text, bar] { ShowWhole(text->text(), bar->window()); });
    KeepRoom(*bar);
    KeepRoom(*text);
    return bar;
}

}  // namespace kelvra::desktop
