// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/main_window_view.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenuBar>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/visit.h"
#include "desktop/common.h"
#include "desktop/focus_ring.h"
#include "desktop/icons.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {
constexpr int IndicatorIcon = 20;  // logical pixels
constexpr int NoticeLines = 2;     // for the usual notices, so that the strip does not jump
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
    auto* top = new QHBoxLayout;
    top->setSpacing(0);
    top->addWidget(BuildTools(), 3);
    top->addWidget(BuildFormulas(), 2);
    auto* central = new QWidget;
    auto* all = new QVBoxLayout(central);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addLayout(top);
    all->addWidget(area_, 1);
    area_->setAccessibleName("Windows");
    widget_.setCentralWidget(central);
    widget_.setWindowIcon(Icon("kelvra"));
}

void MainWindowView::MirrorFrame() {
    mirror_.Add(form_, std::make_unique<FrameWindowAdapter>(form_, widget_));
}

void MainWindowView::BuildMenus() {
    for (controls::Control* control : form_.Children()) {
        const auto* item = controls::As<controls::MenuItem>(*control);
        if (item == nullptr) continue;
        QMenu* menu = widget_.menuBar()->addMenu(MarkedText(*item, item->caption));
        if (item == &form_.MenueWindow) windowMenu_ = menu;
        menu->setToolTipsVisible(true);
        for (controls::Control* entry : item->Children()) {
            QAction* action = maker_.AddEntry(*menu, *controls::As<controls::MenuItem>(*entry));
            if (OpensNothingYet(*entry)) Withhold(*action);
        }
    }
}

// Whether the control opens a window that is not drawn yet.
bool MainWindowView::OpensNothingYet(const controls::Control& control) const {
    const std::initializer_list<const controls::Control*> openers{
        &form_.FileSaveData, &form_.SettingAlwaysOnTop, &form_.MHelpAbout, &form_.Show_Settings};
    return std::find(openers.begin(), openers.end(), &control) != openers.end();
}

QWidget* MainWindowView::BuildTools() {
    QFrame* tools = maker_.Make(form_.MainTools);
    auto* rows = new QVBoxLayout(tools);
    rows->addLayout(BuildButtons());
    rows->addLayout(BuildChoices());
    rows->addLayout(BuildConnection());
    rows->addStretch();
    new FocusRing(tools);
    return tools;
}

QHBoxLayout* MainWindowView::BuildButtons() {
    auto* row = new QHBoxLayout;
    for (controls::Button* button : {&form_.StartIt, &form_.StopIt, &form_.Show_Settings}) {
        QPushButton* widget = maker_.Make(*button);
        if (OpensNothingYet(*button)) Withhold(*widget);
        row->addWidget(widget);
    }
    row->addWidget(maker_.Make(form_.BusySign));
    row->addWidget(maker_.Make(form_.MeasSpeedInfo));
    row->addStretch();
    return row;
}

QHBoxLayout* MainWindowView::BuildChoices() {
    auto* row = new QHBoxLayout;
    row->addWidget(maker_.Make(form_.SensSyncMode));
    row->addWidget(maker_.Make(form_.SensorLabel));
    row->addWidget(maker_.Make(form_.TimeSensor_select_new));
    row->addStretch();
    return row;
}

QHBoxLayout* MainWindowView::BuildConnection() {
    auto* row = new QHBoxLayout;
    row->addWidget(maker_.Make(form_.picConnected, IndicatorIcon));
    QLabel* connected = maker_.Make(form_.ConSensors);
    QFont bold = connected->font();
    bold.setBold(true);
    connected->setFont(bold);
    row->addWidget(connected);

    QFrame* notice = maker_.Make(form_.ConnectedFrame);
    auto* inside = new QHBoxLayout(notice);
    inside->setContentsMargins(0, 0, 0, 0);
    QLabel* text = maker_.Make(form_.lblMeasAwait);
    text->setWordWrap(true);
    text->setMinimumHeight(NoticeLines * QFontMetrics(text->font()).lineSpacing());
    inside->addWidget(text);
    // The row keeps its height when the notice comes and goes.
    for (QWidget* hidden : {static_cast<QWidget*>(notice), static_cast<QWidget*>(text)}) {
        QSizePolicy policy = hidden->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        hidden->setSizePolicy(policy);
    }
    row->addWidget(notice, 1);
    return row;
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
    innerLayout->addWidget(formulas_);
    // The formulas are always visible, and take no more room than they need.
    formulas_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    formulas_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    formulas_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    formulas_->onNeed = [this] { KeepResultsInSight(); };
    formulas_->onFit();
    // Where room is short the formula column shrinks: names and results matter more.
    formulas_->horizontalHeader()->setSectionResizeMode(FormulaColumn, QHeaderView::Stretch);
    return outer;
}

}  // namespace kelvra::desktop
