// SPDX-License-Identifier: GPL-3.0-or-later
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "desktop/common.h"
#include "desktop/dialog_views.h"

namespace kelvra::desktop {

namespace {
constexpr int LeastRows = 6;
constexpr int Characters = 60;
}  // namespace

QWidget* MakeCopyWindow(forms::CopyForm& form, WidgetMaker& maker) {
    auto* all = new QWidget;
    auto* column = new QVBoxLayout(all);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Margin);
    QLabel* from = maker.Make(form.lblCopyFrom);
    from->setWordWrap(true);
    column->addWidget(from);
    GridWidget* sensors = maker.Make(form.CopyTargets);
    sensors->horizontalHeader()->setStretchLastSection(true);
    sensors->setMinimumSize(Characters * sensors->fontMetrics().averageCharWidth(),
                            LeastRows * 2 * sensors->fontMetrics().height());
    column->addWidget(sensors, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Margin);
    buttons->addWidget(maker.Make(form.cmdCopyAll));
    buttons->addStretch();
    buttons->addWidget(maker.Make(form.cmdCopy));
    buttons->addWidget(maker.Make(form.cmdCopyCancel));
    column->addLayout(buttons);
    return all;
}

}  // namespace kelvra::desktop
