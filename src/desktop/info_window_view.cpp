// SPDX-License-Identifier: GPL-3.0-or-later
#include <QHBoxLayout>
#include <QScrollBar>
#include <QVBoxLayout>

#include "desktop/common.h"
#include "desktop/dialog_views.h"

namespace kelvra::desktop {

namespace {

constexpr int NameCharacters = 26;
constexpr int ValueCharacters = 44;
constexpr int Lines = 18;

void Size(QListWidget& box, int characters) {
    const QFontMetrics metrics(box.font());
    box.setMinimumSize(characters * metrics.averageCharWidth(), Lines * metrics.lineSpacing());
}

// The names need no bar of their own.
void ScrollTogether(QListWidget& names, QListWidget& values) {
    names.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (QListWidget* box : {&names, &values}) {
        box->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
        box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
    QObject::connect(names.verticalScrollBar(), &QScrollBar::valueChanged,
                     values.verticalScrollBar(), &QScrollBar::setValue);
    QObject::connect(values.verticalScrollBar(), &QScrollBar::valueChanged,
                     names.verticalScrollBar(), &QScrollBar::setValue);
}

}  // namespace

QWidget* MakeInfoWindow(forms::SensInfoForm& form, WidgetMaker& maker) {
    auto* all = new QWidget;
    auto* column = new QVBoxLayout(all);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Margin);
    column->addWidget(maker.Make(form.lblInfoSensor));
    auto* lists = new QHBoxLayout;
    lists->setSpacing(0);
    QListWidget* names = maker.MakeListBox(form.InfoHeader);
    QListWidget* values = maker.MakeListBox(form.InfoValue);
    Size(*names, NameCharacters);
    Size(*values, ValueCharacters);
    ScrollTogether(*names, *values);
    lists->addWidget(names, NameCharacters);
    lists->addWidget(values, ValueCharacters);
    column->addLayout(lists, 1);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(Margin);
    for (controls::Button* button : {&form.cmdInfoCopy, &form.cmdInfoSave})
        buttons->addWidget(maker.Make(*button));
    buttons->addStretch();
    column->addLayout(buttons);
    return all;
}

}  // namespace kelvra::desktop
