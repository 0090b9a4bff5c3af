// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/display_views.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QScrollBar>
#include <QVBoxLayout>

#include "desktop/common.h"
#include "desktop/display_parts.h"
#include "desktop/flow_layout.h"
#include "desktop/form_rows.h"

namespace kelvra::desktop {

namespace {

constexpr int ZoomIcon = 18;  // logical pixels
constexpr int CursorCharacters = 17;

// As wide as the longest entries, so that nothing moves when they change.
QWidget* MakeCursorChoice(forms::ScopeDisp& form, WidgetMaker& maker) {
    QComboBox* cursors = maker.Make(form.CursorSelect);
    cursors->setFixedWidth(CursorCharacters * cursors->fontMetrics().averageCharWidth());
    QLineEdit* position = maker.Make(form.CursorPosition);
    SizeAsNumber(*position);
    QLabel* unit = maker.Make(*form.CursorPosition.unitLabel);
    unit->setMinimumWidth(unit->fontMetrics().horizontalAdvance("dBm"));
    QWidget* choice = Captioned(maker.Make(*form.CursorSelect.captionLabel), cursors);
    choice->layout()->addWidget(position);
    choice->layout()->addWidget(unit);
    return choice;
}

// What is shown besides the trace, as a menu: the graph needs the room.
QWidget* MakeShowMenu(forms::ScopeDisp& form, WidgetMaker& maker) {
    auto* button = new QPushButton("Sh&ow");
    button->setToolTip("What is shown besides the trace");
    auto* menu = new QMenu(button);
    menu->setToolTipsVisible(true);
    for (controls::CheckBox* box :
         {&form.ShowTSlotMarkers, &form.chkAddBoundingBox, &form.ShowPulse})
        maker.AddEntry(*menu, *box);
    menu->addSeparator();
    for (controls::CheckBox* box : {&form.HoldMaximum, &form.HoldMinimum})
        maker.AddEntry(*menu, *box);
    for (controls::Button* kept : {&form.KeepReference, &form.DropReference})
        maker.AddEntry(*menu, *kept);
    button->setMenu(menu);
    return button;
}

}  // namespace

QWidget* MakeTraceView(forms::ScopeDisp& form, WidgetMaker& maker, QtDialogs& dialogs) {
    QVBoxLayout* column = nullptr;
    QWidget* all = MakeRoom(column);
    auto* choices = new FlowLayout(2 * Margin, Margin / 2);
    choices->addWidget(Captioned(maker.Make(form.lblSensor), maker.Make(form.Scope_Sensorselect)));
    QPushButton* zoom = maker.Make(form.Scope_Zoom_Button);
    zoom->setIconSize({ZoomIcon, ZoomIcon});
    choices->addWidget(zoom);
    choices->addWidget(MakeCursorChoice(form, maker));
    choices->addWidget(MakeShowMenu(form, maker));
    column->addLayout(choices);

    auto* rest = new QHBoxLayout;
    rest->setSpacing(Margin);
    rest->addLayout(MakeGraph(form.Display, form.lblPointed, form.TraceMenu, maker, dialogs), 1);
    QFrame* pulses = maker.Make(form.PulseFrame);
    auto* readings = new QVBoxLayout(pulses);
    readings->setContentsMargins(0, 0, 0, 0);
    GridWidget* table = maker.Make(form.PulseReadings);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->onNeed = [table] {
        table->setFixedWidth(table->sizeHint().width() +
                             table->verticalScrollBar()->sizeHint().width());
    };
    readings->addWidget(table);
    rest->addWidget(pulses);
    column->addLayout(rest, 1);
    return all;
}

QWidget* MakeSlotView(forms::TimeSlotDisp& form, WidgetMaker& maker, QtDialogs& dialogs) {
    QVBoxLayout* column = nullptr;
    QWidget* all = MakeRoom(column);
    auto* choices = new QHBoxLayout;
    choices->addWidget(
        Captioned(maker.Make(form.lblSensor), maker.Make(form.Timeslot_Sensorselect)));
    choices->addStretch();
    column->addLayout(choices);
    column->addLayout(MakeGraph(form.Display, form.lblPointed, form.SlotMenu, maker, dialogs), 1);
    return all;
}

QWidget* MakeSlotTableView(forms::TimeSlotTabForm& form, WidgetMaker& maker) {
    QVBoxLayout* outer = nullptr;
    QWidget* all = MakeRoom(outer);
    QFrame* frame = maker.Make(form.MainFrame);
    outer->addWidget(frame);
    auto* column = new QVBoxLayout(frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Margin / 2);
    auto* head = new QHBoxLayout;
    head->setSpacing(Margin / 2);
    head->addWidget(maker.Make(form.lblNumberOfSamples));
    head->addWidget(maker.Make(form.NumberOfSamples));
    head->addStretch();
    head->addWidget(maker.Make(form.ResetStat));
    column->addLayout(head);
    column->addWidget(maker.Make(form.TimeSlots), 1);
    return all;
}

}  // namespace kelvra::desktop
