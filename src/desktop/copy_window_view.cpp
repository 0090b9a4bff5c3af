// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/copy_window_view.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "desktop/common.h"

namespace kelvra::desktop {

namespace {
constexpr int LeastRows = 6;
constexpr int Characters = 60;
}  // namespace

CopyWindowView::CopyWindowView(forms::CopyForm& form, Mirror& mirror, QWidget& area)
    : form_(form), maker_(mirror), window_(form, area, Build()) {}

QWidget* CopyWindowView::Build() {
    auto* all = new QWidget;
    auto* column = new QVBoxLayout(all);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Margin);
    QLabel* from = maker_.Make(form_.lblCopyFrom);
    from->setWordWrap(true);
    column->addWidget(from);
    GridWidget* sensors = maker_.Make(form_.CopyTargets);
    sensors->horizontalHeader()->setStretchLastSection(true);
    sensors->setMinimumSize(Characters * sensors->fontMetrics().averageCharWidth(),
                            LeastRows * 2 * sensors->fontMetrics().height());
    column->addWidget(sensors, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Margin);
    buttons->addWidget(maker_.Make(form_.cmdCopyAll));
    buttons->addStretch();
    buttons->addWidget(maker_.Make(form_.cmdCopy));
    buttons->addWidget(maker_.Make(form_.cmdCopyCancel));
    column->addLayout(buttons);
    return all;
}

}  // namespace kelvra::desktop
