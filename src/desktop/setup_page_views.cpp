// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/setup_page_views.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "desktop/common.h"
#include "desktop/form_rows.h"
#include "desktop/mode_drawing.h"
#include "sensors/sensor_settings.h"

namespace kelvra::desktop {

using controls::Control;
using forms::SetupForm;

namespace {

constexpr int CommandIcon = 20;  // logical pixels

// Puts one over the other; the records show one of them. All keep their room.
QGridLayout* Stack(const QList<QWidget*>& widgets) {
    auto* cell = new QGridLayout;
    cell->setContentsMargins(0, 0, 0, 0);
    for (QWidget* widget : widgets) {
        KeepRoom(*widget);
        cell->addWidget(widget, 0, 0);
    }
    return cell;
}

QWidget* StackIn(const QList<QWidget*>& widgets) {
    auto* place = new QWidget;
    place->setLayout(Stack(widgets));
    return place;
}

QVBoxLayout* Below(QWidget& frame) {
    auto* column = new QVBoxLayout(&frame);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Margin);
    return column;
}

struct AveragingControls {
    Control& on;
    Control& moving;
    const controls::Label& automatic;
    const controls::Label& manual;
    controls::OptionGroup& modes;  // resolution, noise, count
    Control& resolution;
    Control& noise;
    Control& longest;
    Control* slot;  // null: none
    Control& count;
};

void AddAveraging(FormRows& rows, const AveragingControls& averaging) {
    rows.AddLine({&averaging.on, &averaging.moving});
    const QList<QAbstractButton*> modes = rows.Maker().MakeOptions(averaging.modes);
    rows.AddWide(rows.Maker().Make(averaging.automatic));
    rows.Add(modes[sensors::ByResolution], averaging.resolution);
    rows.Add(modes[sensors::ByNoise], averaging.noise);
    rows.Add({&averaging.longest});
    if (averaging.slot != nullptr) rows.Add({averaging.slot});
    rows.AddWide(rows.Maker().Make(averaging.manual));
    rows.Add(modes[sensors::ByCount], averaging.count);
}

QWidget* MakeAveraging(SetupForm& form, WidgetMaker& maker) {
    QGroupBox* group = maker.MakeGroup(form.AverageFrame);
    FormRows rows(*group, maker);
    AddAveraging(rows, {form.SensAVGState, form.MovingAveraging, form.lblAvgAuto, form.lblAvgManual,
                        form.SensAvgMode, form.SensAvgResValue, form.SensAvgSNRValue,
                        form.SensAvgMaxTime, &form.SensAvgSlot, form.SensAvgCount});
    return group;
}

// A box of each display, of which one is visible, between the caption and the unit they share.
QWidget* Limit(WidgetMaker& maker, controls::TextBox& traceBox, controls::TextBox& slotBox,
               const controls::Label& unit) {
    auto* place = new QWidget;
    auto* line = new QHBoxLayout(place);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(Margin);
    const QList<QWidget*> boxes{maker.Make(traceBox), maker.Make(slotBox)};
    for (QWidget* box : boxes) SizeAsNumber(*box);
    line->addLayout(Stack(boxes));
    line->addWidget(maker.Make(unit));
    line->addStretch();
    return place;
}

QWidget* MakeGraph(SetupForm& form, WidgetMaker& maker) {
    QGroupBox* group = maker.MakeGroup(form.GraphFrame);
    FormRows rows(*group, maker);
    rows.AddWide(StackIn({maker.Make(form.chkAutoScaleScope), maker.Make(form.chkAutoScaleTime)}));
    rows.AddCaptioned(maker.Make(form.lblMinimum),
                      Limit(maker, form.txtMinScope, form.txtMinTime, form.lblMinimumUnit));
    rows.AddCaptioned(maker.Make(form.lblMaximum),
                      Limit(maker, form.txtMaxScope, form.txtMaxTime, form.lblMaximumUnit));
    return group;
}

QWidget* MakeCommands(SetupForm& form, WidgetMaker& maker) {
    QGroupBox* group = maker.MakeGroup(form.ActionFrame);
    auto* rows = new QVBoxLayout(group);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setSpacing(Margin);
    auto* line = new QHBoxLayout;
    line->setSpacing(Margin);
    for (controls::Button* command :
         {&form.SensorZero, &form.cmdZeroAll, &form.SensSelfTest, &form.SensInfo}) {
        QPushButton* button = maker.Make(*command);
        button->setIconSize({CommandIcon, CommandIcon});
        line->addWidget(button);
    }
    line->addStretch();
    rows->addLayout(line);
    QLabel* hint = maker.Make(form.lblZeroHint);
    hint->setWordWrap(true);
    rows->addWidget(hint);
    return group;
}

// The mode's drawing is above its fields.
QWidget* MakeMode(const controls::Frame& frame, WidgetMaker& maker, std::int32_t mode,
                  std::initializer_list<Control*> fields,
                  std::initializer_list<Control*> marks = {}) {
    QGroupBox* group = maker.MakeGroup(frame);
    FormRows rows(*group, maker);
    rows.AddWide(new ModeDrawing(mode));
    rows.Add(fields);
    if (marks.size() != 0) rows.AddLine(marks);
    rows.End();
    return group;
}

QWidget* MakeTrace(SetupForm& form, WidgetMaker& maker) {
    QGroupBox* group = maker.MakeGroup(form.ScopeFrame);
    FormRows rows(*group, maker);
    rows.AddWide(new ModeDrawing(sensors::Trace));
    rows.Add({&form.ScopePoints, &form.ScopeTime, &form.ScopeTimeOffset, &form.ShowExclInTSlot});
    rows.AddLine({&form.ScopeRealtime});
    AddAveraging(rows, {form.ScopeAVGState, form.ScopeMovingAveraging, form.lblScopeAvgAuto,
                        form.lblScopeAvgManual, form.ScopeAvgMode, form.ScopeAvgResValue,
                        form.ScopeAvgSNRValue, form.ScopeAvgMaxTime, nullptr, form.ScopeAvgCount});
    rows.End();
    return group;
}

}  // namespace

QWidget* MakeGeneralPage(SetupForm& form, WidgetMaker& maker) {
    QFrame* page = maker.Make(form.GeneralFrame);
    auto* column = Below(*page);
    auto* sensor = new QWidget;
    FormRows rows(*sensor, maker);
    QLabel* caption = maker.Make(*form.SensLogicalName.captionLabel);
    QLineEdit* name = maker.Make(form.SensLogicalName);
    caption->setBuddy(name);
    rows.AddCaptioned(caption, name);
    rows.AddCaptioned(maker.Make(form.lblType), maker.Make(form.SensTypeInfo));
    column->addWidget(sensor);
    column->addWidget(MakeAveraging(form, maker));
    column->addWidget(MakeGraph(form, maker));
    column->addWidget(MakeCommands(form, maker));
    column->addStretch();
    return page;
}

QWidget* MakeModePage(SetupForm& form, WidgetMaker& maker) {
    QFrame* page = maker.Make(form.ModeFrame);
    Below(*page)->addLayout(Stack({
        MakeMode(form.ContAVFrame, maker, sensors::ContinuousAverage, {&form.SensContAVTime},
                 {&form.SensContAVSmooth}),
        MakeMode(form.BufferAVFrame, maker, sensors::BufferedAverage, {&form.SensBuffAVSize}),
        MakeMode(form.TimeSlotFrame, maker, sensors::TimeSlot,
                 {&form.SensSlotCount, &form.SensSlotWidth, &form.SensSlotExclStart,
                  &form.SensSlotExclStop}),
        MakeMode(form.BurstAVFrame, maker, sensors::Burst, {&form.SensBurstDropOut}),
        MakeTrace(form, maker),
    }));
    return page;
}

QWidget* MakeTriggerPage(SetupForm& form, WidgetMaker& maker) {
    QGroupBox* page = maker.MakeGroup(form.TriggerFrame);
    FormRows rows(*page, maker);
    rows.Add({&form.SensTrigger});
    rows.Append(maker.Make(form.SensTriggerNow));
    rows.AddOptions(form.SensTriggerSlope);
    rows.Add({&form.SensTriggerLevel, &form.SensTriggerHyst, &form.SensTriggerDelay,
              &form.SensTriggerHoldOff, &form.SensTriggerCount});
    rows.End();
    return page;
}

QWidget* MakeCorrectionPage(SetupForm& form, WidgetMaker& maker) {
    QGroupBox* page = maker.MakeGroup(form.CorrectionFrame);
    FormRows rows(*page, maker);
    rows.Add(maker.Make(form.CorrOffsetEnable), form.CorrOffsetValue);
    rows.Add(maker.Make(form.CorrFreqEnable), form.CorrFreqValue);
    rows.Add(maker.Make(form.CorrGammaEnabled), form.CorrGammaAmp);
    rows.Add({&form.CorrGammaPhase});
    rows.Add(maker.Make(form.CorrDutyEnable), form.CorrDutyValue);
    rows.AddLine({&form.CorrSParaEnabled});
    rows.End();
    return page;
}

QWidget* MakeAdvancedPage(SetupForm& form, WidgetMaker& maker) {
    QFrame* page = maker.Make(form.AdvancedFrame);
    auto* column = Below(*page);
    QGroupBox* sampling = maker.MakeGroup(form.SamplingFrame);
    FormRows samplingRows(*sampling, maker);
    samplingRows.AddLine({&form.SensInitCont});
    samplingRows.AddOptions(form.SensSampFreq);
    column->addWidget(sampling);
    QGroupBox* range = maker.MakeGroup(form.RangeFrame);
    FormRows rangeRows(*range, maker);
    const QList<QAbstractButton*> kinds = maker.MakeOptions(form.SensRange);
    rangeRows.Add(kinds[0], form.SensRangeXOver);
    rangeRows.Add(kinds[1], form.SensRangeValue);
    column->addWidget(range);
    column->addStretch();
    return page;
}

}  // namespace kelvra::desktop
