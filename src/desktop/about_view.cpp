// SPDX-License-Identifier: GPL-3.0-or-later
#include <qcustomplot.h>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QTextEdit>
#include <QVBoxLayout>

#include "desktop/common.h"
#include "desktop/dialog_views.h"

namespace kelvra::desktop {

namespace {

constexpr int PictureSide = 64;   // logical pixels
constexpr double NameSize = 1.6;  // of the other text's

QHBoxLayout* Row() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Margin);
    return row;
}

QLayout* MakeHeader(forms::AboutForm& form, WidgetMaker& maker) {
    auto* row = Row();
    row->addWidget(maker.Make(form.Image, PictureSide), 0, Qt::AlignTop);
    auto* lines = new QVBoxLayout;
    lines->setSpacing(Margin / 2);
    for (const controls::Label* label :
         {&form.AppName, &form.AppDesc, &form.AppVersion, &form.AppCopy}) {
        QLabel* widget = maker.Make(*label);
        widget->setTextInteractionFlags(Qt::TextSelectableByMouse);
        if (label == &form.AppName) {
            QFont large = widget->font();
            large.setPointSizeF(NameSize * large.pointSizeF());
            large.setBold(true);
            widget->setFont(large);
        }
        lines->addWidget(widget);
    }
    row->addLayout(lines, 1);
    return row;
}

QLayout* MakeLinks(forms::AboutForm& form, WidgetMaker& maker) {
    auto* row = Row();
    row->setSpacing(3 * Margin);
    for (controls::Label* link : {&form.HomeLink, &form.ProductLink, &form.SupportMail})
        row->addWidget(maker.MakeLink(*link));
    row->addStretch();
    return row;
}

// All panels have the same place, which is there when none is shown: the window keeps its size.
QWidget* MakePanels(forms::AboutForm& form, WidgetMaker& maker) {
    auto* place = new QWidget;
    auto* stack = new QGridLayout(place);
    stack->setContentsMargins(0, 0, 0, 0);
    auto* none = new QFrame;
    none->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    stack->addWidget(none, 0, 0);
    for (const controls::RichText* panel :
         {&form.SysInfoValue, &form.DriverInfoValue, &form.LizText}) {
        QTextEdit* text = maker.Make(*panel);
        KeepRoom(*text);
        stack->addWidget(text, 0, 0);
    }
    return place;
}

}  // namespace

QWidget* MakeAboutBox(forms::AboutForm& form, WidgetMaker& maker) {
    auto* all = new QWidget;
    auto* column = new QVBoxLayout(all);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Margin);
    column->addLayout(MakeHeader(form, maker));
    column->addLayout(MakeLinks(form, maker));
    auto* shows = Row();
    for (controls::Button* button :
         {&form.ShowSystemInfo, &form.ShowDriverInfo, &form.ShowLegalNotes})
        shows->addWidget(maker.Make(*button));
    shows->addStretch();
    column->addLayout(shows);
    column->addWidget(MakePanels(form, maker), 1);
    auto* ends = Row();
    ends->addWidget(maker.Make(form.CreateSupportString));
    ends->addStretch();
    ends->addWidget(maker.Make(form.Close));
    column->addLayout(ends);
    return all;
}

std::vector<ui::LibraryVersion> FrontEndLibraries() {
    return {{"Qt", qVersion()},
            {"Plot library", std::string("QCustomPlot ") + QCUSTOMPLOT_VERSION_STR}};
}

}  // namespace kelvra::desktop
