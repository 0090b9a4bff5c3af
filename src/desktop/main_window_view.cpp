// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/main_window_view.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenuBar>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/visit.h"
#include "desktop/common.h"
#include "desktop/elided_label.h"
#include "desktop/focus_ring.h"
#include "desktop/icons.h"
#include "desktop/notice_bar.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {
constexpr int IndicatorIcon = 20;  // logical pixels
constexpr int LeastFormulaWidth = 60;
constexpr int FormulaColumn = 1;
}  // namespace

MainWindowView::MainWindowView(forms::MDIMain& form, Mirror& mirror)
    : form_(form),
      mirror_(mirror),
      maker_(mirror),
      widget_(form),
      area_(new QMdiArea),
      formulas_(maker_.Make(form.CalcGrid)) {
    BuildMenus();
    auto* central = new QWidget;
    auto* all = new QVBoxLayout(central);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(BuildStrip());
    all->addWidget(area_, 1);
    area_->setAccessibleName("Windows");
    widget_.setCentralWidget(central);
    widget_.setWindowIcon(Icon("kelvra"));
}

void MainWindowView::MirrorFrame(const QByteArray& geometry) {
    auto adapter = std::make_unique<FrameWindowAdapter>(form_, widget_);
    adapter->before = geometry;
    mirror_.Add(form_, std::move(adapter));
}

void MainWindowView::BuildMenus() {
    for (controls::Control* control : form_.Children()) {
        const auto* item = controls::As<controls::MenuItem>(*control);
        if (item == nullptr) continue;
        QMenu* menu = widget_.menuBar()->addMenu(MarkedText(*item, item->caption));
        if (item == &form_.MenueWindow) windowMenu_ = menu;
        if (item == &form_.MEdit) editMenu_ = menu;
        menu->setToolTipsVisible(true);
        for (controls::Control* entry : item->Children())
            maker_.AddEntry(*menu, *controls::As<controls::MenuItem>(*entry));
    }
}

// Tools and formulas side by side, below them the connection and the notice.
QWidget* MainWindowView::BuildStrip() {
    QFrame* strip = maker_.Make(form_.MainTools);
    auto* rows = new QGridLayout(strip);
    rows->setContentsMargins(Margin, Margin, Margin, Margin);
    rows->setHorizontalSpacing(2 * Margin);
    rows->setColumnStretch(1, 1);
    auto* tools = new QVBoxLayout;
    tools->setSpacing(Margin);
    tools->addLayout(BuildButtons());
    tools->addLayout(BuildChoices());
    tools->addWidget(BuildRecording());
    tools->addStretch();
    rows->addLayout(tools, 0, 0);
    rows->addWidget(BuildFormulas(), 0, 1);
    rows->addLayout(BuildConnection(), 1, 0, 1, 2);
    new FocusRing(strip);
    return strip;
}

QHBoxLayout* MainWindowView::BuildButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Margin);
    for (controls::Button* button : {&form_.StartIt, &form_.StopIt, &form_.Show_Settings}) {
        row->addWidget(maker_.Make(*button));
    }
    row->addWidget(maker_.Make(form_.BusySign));
    QLabel* speed = maker_.Make(form_.MeasSpeedInfo);
    speed->setMinimumWidth(speed->fontMetrics().horizontalAdvance("000 /s"));
    KeepRoom(*speed);
    row->addWidget(speed);
    row->addWidget(maker_.Make(form_.NotMeasuring, new ElidedLabel(1)));
    row->addStretch();
    return row;
}

QHBoxLayout* MainWindowView::BuildChoices() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Margin);
    auto* synchronisation = new QLabel(Shown(form_.SensSyncMode.access.name));
    QComboBox* modes = maker_.Make(form_.SensSyncMode);
    synchronisation->setBuddy(modes);
    row->addWidget(synchronisation);
    row->addWidget(modes);
    row->addSpacing(Margin);
    QLabel* caption = maker_.Make(form_.SensorLabel);
    QComboBox* sensors = maker_.Make(form_.TimeSensor_select_new);
    caption->setBuddy(sensors);
    row->addWidget(caption);
    row->addWidget(sensors);
    row->addStretch();
    return row;
}

QHBoxLayout* MainWindowView::BuildConnection() {
    auto* row = new QHBoxLayout;
    row->setSpacing(Margin);
    row->addWidget(maker_.Make(form_.picConnected, IndicatorIcon));
    QLabel* connected = maker_.Make(form_.ConSensors);
    QFont bold = connected->font();
    bold.setBold(true);
    connected->setFont(bold);
    row->addWidget(connected);
    row->addSpacing(2 * Margin);
    row->addWidget(MakeNoticeBar(form_, maker_), 1);
    return row;
}

// What a long name or a large font leaves no room for is in the tooltip.
QWidget* MainWindowView::BuildRecording() {
    QFrame* frame = maker_.Make(form_.RecordFrame);
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Margin);
    row->addWidget(maker_.Make(form_.picRecord, IndicatorIcon));
    row->addWidget(maker_.Make(form_.lblRecord, new ElidedLabel(1)), 1);
    QPushButton* folder = maker_.Make(form_.OpenRecordFolder);
    row->addWidget(folder);
    KeepRoom(*frame);
    return frame;
}

void MainWindowView::KeepResultsInSight() {
    int width = std::max(LeastFormulaWidth, formulas_->horizontalHeader()->minimumSectionSize());
    for (int column = 0; column < formulas_->columnCount(); ++column)
        if (column != FormulaColumn) width += formulas_->columnWidth(column);
    formulas_->setMinimumWidth(width + 2 * formulas_->frameWidth());
}

QWidget* MainWindowView::BuildFormulas() {
    QFrame* outer = maker_.Make(form_.MainFuncFrame);
    QFrame* inner = maker_.Make(form_.CalcFrame);
    auto* outerLayout = new QVBoxLayout(outer);
    auto* innerLayout = new QVBoxLayout(inner);
    outerLayout->setContentsMargins(0, 0, 0, 0);
    outerLayout->addWidget(inner);
    innerLayout->setContentsMargins(0, 0, 0, 0);
    innerLayout->setSpacing(Margin / 2);
    innerLayout->addWidget(formulas_);
    auto* remark = new ElidedLabel(1);
    remark->setAccessibleName("About the formulas");
    innerLayout->addWidget(remark);
    innerLayout->addStretch();
    formulas_->onRemark = [remark](const controls::Grid::Remark& about) {
        remark->setText(Shown(about.text));
    };
    // The formulas are always visible, and take no more room than they need.
    formulas_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    formulas_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    formulas_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    formulas_->onNeed = [this] { KeepResultsInSight(); };
    KeepResultsInSight();
    // Where room is short the formula column shrinks: names and results matter more.
    formulas_->horizontalHeader()->setSectionResizeMode(FormulaColumn, QHeaderView::Stretch);
    return outer;
}

}  // namespace kelvra::desktop
