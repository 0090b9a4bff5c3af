// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/main_window_view.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenuBar>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>

#include "controls/visit.h"
#include "desktop/common.h"
#include "desktop/focus_ring.h"
#include "desktop/icons.h"
#include "desktop/qt_text.h"
#include "desktop/simple_adapters.h"

namespace kelvra::desktop {

namespace {
constexpr int ToolIcon = 28;  // logical pixels
constexpr int IndicatorIcon = 20;
constexpr int NoticeLines = 2;  // room for the usual ones, so that the strip does not jump
constexpr int LeastFormulaWidth = 60;
constexpr int FormulaColumn = 1;
}  // namespace

MainWindowView::MainWindowView(forms::MDIMain& form, Mirror& mirror)
    : form_(form),
      mirror_(mirror),
      widget_(form),
      area_(new QMdiArea),
      formulas_(new GridWidget(form.CalcGrid)) {
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
        for (controls::Control* entry : item->Children())
            AddEntry(*menu, *controls::As<controls::MenuItem>(*entry));
    }
}

void MainWindowView::AddEntry(QMenu& menu, controls::MenuItem& item) {
    if (item.IsSeparator()) {
        menu.addSeparator();
        return;
    }
    QAction* action = menu.addAction(QString());
    action->setShortcut(QKeySequence(Shown(item.access.shortcut)));
    action->setCheckable(item.checkable);
    mirror_.Add(item, std::make_unique<MenuItemAdapter>(item, *action));
}

QWidget* MainWindowView::BuildTools() {
    auto* tools = new QFrame;
    auto* rows = new QVBoxLayout(tools);
    rows->addLayout(BuildButtons());
    rows->addLayout(BuildChoices());
    rows->addLayout(BuildConnection());
    rows->addStretch();
    new FocusRing(tools);
    mirror_.Add(form_.MainTools, std::make_unique<FrameAdapter>(form_.MainTools, *tools));
    return tools;
}

QPushButton* MainWindowView::MakeButton(controls::Button& button) {
    auto* widget = new QPushButton;
    widget->setIconSize({ToolIcon, ToolIcon});
    widget->setObjectName(QString::fromStdString(button.Name()));
    const QString name = Shown(button.access.name);
    const QString shortcut = Shown(button.access.shortcut);
    if (!shortcut.isEmpty()) {
        // Beside the underlined letter, which the button's own shortcut would replace.
        new QShortcut(QKeySequence(shortcut), widget, [widget] { widget->click(); });
        SetOwnTooltip(*widget, name + " (" + shortcut + ")");
    }
    Describe(*widget, name);
    mirror_.Add(button, std::make_unique<ButtonAdapter>(button, *widget));
    return widget;
}

QLabel* MainWindowView::MakeLabel(const controls::Label& label) {
    auto* widget = new QLabel;
    widget->setObjectName(QString::fromStdString(label.Name()));
    mirror_.Add(label, std::make_unique<LabelAdapter>(label, *widget));
    return widget;
}

QWidget* MainWindowView::MakeList(controls::List& list) {
    auto* widget = new ListWidget;
    widget->setObjectName(QString::fromStdString(list.Name()));
    widget->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    Describe(*widget, Shown(list.access.name));
    mirror_.Add(list, std::make_unique<ListAdapter>(list, *widget));
    return widget;
}

QHBoxLayout* MainWindowView::BuildButtons() {
    auto* row = new QHBoxLayout;
    row->addWidget(MakeButton(form_.StartIt));
    row->addWidget(MakeButton(form_.StopIt));
    row->addWidget(MakeButton(form_.Show_Settings));
    auto* busy = new QLabel;
    Describe(*busy, Shown(form_.BusySign.access.name));
    mirror_.Add(form_.BusySign, std::make_unique<PictureAdapter>(form_.BusySign, *busy, ToolIcon));
    row->addWidget(busy);
    row->addWidget(MakeLabel(form_.MeasSpeedInfo));
    row->addStretch();
    return row;
}

QHBoxLayout* MainWindowView::BuildChoices() {
    auto* row = new QHBoxLayout;
    row->addWidget(MakeList(form_.SensSyncMode));
    row->addWidget(MakeLabel(form_.SensorLabel));
    row->addWidget(MakeList(form_.TimeSensor_select_new));
    row->addStretch();
    return row;
}

QHBoxLayout* MainWindowView::BuildConnection() {
    auto* row = new QHBoxLayout;
    auto* picture = new QLabel;
    Describe(*picture, Shown(form_.picConnected.access.name));
    mirror_.Add(form_.picConnected,
                std::make_unique<PictureAdapter>(form_.picConnected, *picture, IndicatorIcon));
    row->addWidget(picture);
    QLabel* connected = MakeLabel(form_.ConSensors);
    QFont bold = connected->font();
    bold.setBold(true);
    connected->setFont(bold);
    row->addWidget(connected);

    auto* notice = new QFrame;
    auto* inside = new QHBoxLayout(notice);
    inside->setContentsMargins(0, 0, 0, 0);
    QLabel* text = MakeLabel(form_.lblMeasAwait);
    text->setWordWrap(true);
    text->setMinimumHeight(NoticeLines * QFontMetrics(text->font()).lineSpacing());
    inside->addWidget(text);
    mirror_.Add(form_.ConnectedFrame,
                std::make_unique<FrameAdapter>(form_.ConnectedFrame, *notice));
    // The row keeps its height while the notice comes and goes.
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
    auto* outer = new QFrame;
    auto* outerLayout = new QVBoxLayout(outer);
    auto* inner = new QFrame;
    auto* innerLayout = new QVBoxLayout(inner);
    outerLayout->setContentsMargins(0, 0, 0, 0);
    outerLayout->addWidget(inner);
    // The formulas are always in sight, and take no more room than that.
    formulas_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    formulas_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    formulas_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    formulas_->setObjectName("CalcGrid");
    Describe(*formulas_, Shown(form_.CalcGrid.access.name));
    innerLayout->addWidget(formulas_);
    mirror_.Add(form_.MainFuncFrame, std::make_unique<FrameAdapter>(form_.MainFuncFrame, *outer));
    mirror_.Add(form_.CalcFrame, std::make_unique<FrameAdapter>(form_.CalcFrame, *inner));
    auto adapter = std::make_unique<GridAdapter>(form_.CalcGrid, *formulas_);
    formulas_->onFit = [shown = adapter.get()] { shown->FitColumns(); };
    adapter->onNeed = [this] { KeepResultsInSight(); };
    mirror_.Add(form_.CalcGrid, std::move(adapter));
    // Where room is short the formula gives way: names and results are what is read.
    formulas_->horizontalHeader()->setSectionResizeMode(FormulaColumn, QHeaderView::Stretch);
    return outer;
}

}  // namespace kelvra::desktop
