// SPDX-License-Identifier: GPL-3.0-or-later
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/common.h"
#include "desktop/dialog_views.h"
#include "desktop/form_rows.h"

namespace kelvra::desktop {

QWidget* MakeRecordDialog(forms::TimeForm& form, WidgetMaker& maker) {
    QFrame* all = maker.Make(form.Frame1);
    auto* column = new QVBoxLayout(all);
    column->setContentsMargins(2 * Margin, 2 * Margin, 2 * Margin, 2 * Margin);
    column->setSpacing(2 * Margin);
    auto* interval = new QHBoxLayout;
    interval->setSpacing(Margin);
    interval->addWidget(maker.Make(form.Image1));
    QLabel* caption = maker.Make(form.lblRecText);
    QLineEdit* box = maker.Make(form.TimeIntervalBox);
    SizeAsNumber(*box);
    caption->setBuddy(box);
    interval->addWidget(caption);
    interval->addWidget(box);
    interval->addWidget(maker.Make(form.Label2));
    interval->addStretch();
    column->addLayout(interval);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(maker.Make(form.SubmitTimeButton));
    column->addLayout(buttons);
    column->addStretch();
    return all;
}

}  // namespace kelvra::desktop
