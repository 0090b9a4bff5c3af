// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widget_maker.h"

#include <QHBoxLayout>
#include <QRadioButton>
#include <QShortcut>
#include <memory>
#include <utility>

#include "controls/visit.h"
#include "desktop/common.h"
#include "desktop/entry_adapters.h"
#include "desktop/graph_adapter.h"
#include "desktop/grid_adapter.h"
#include "desktop/link_button.h"
#include "desktop/page_button.h"
#include "desktop/qt_text.h"
#include "desktop/rich_text_adapter.h"
#include "desktop/simple_adapters.h"

namespace kelvra::desktop {

namespace {

// The control's name for users who can't see its place on the screen.
QString NameForPeople(const controls::Control& control) {
    const controls::Field* field = control.AsField();
    if (control.access.name.empty() && field != nullptr && field->captionLabel)
        return Shown(field->captionLabel->caption.Get());
    return Shown(control.access.name);
}

// What a control is, with the key that reaches it.
QString Explanation(const controls::Control& control) {
    QString text = Shown(control.access.explanation);
    const QString shortcut = Shown(control.access.shortcut);
    if (shortcut.isEmpty()) return text;
    if (text.isEmpty()) text = NameForPeople(control);
    return text + " (" + QKeySequence(shortcut).toString(QKeySequence::NativeText) + ")";
}

}  // namespace

template <class AdapterKind, class Own, class Widget, class... More>
Widget* WidgetMaker::Mirrored(Own& control, Widget* widget, More&&... more) {
    widget->setObjectName(QString::fromStdString(control.Name()));
    widget->setAccessibleName(NameForPeople(control));
    if (const QString text = Explanation(control); !text.isEmpty()) SetOwnTooltip(*widget, text);
    if constexpr (std::is_base_of_v<controls::Focusable, Own> && !std::is_const_v<Own>)
        ReportKeys(control, *widget);
    mirror_.Add(control,
                std::make_unique<AdapterKind>(control, *widget, std::forward<More>(more)...));
    return widget;
}

QLabel* WidgetMaker::Make(const controls::Label& label, QLabel* widget) {
    return Mirrored<LabelAdapter>(label, widget);
}

QPlainTextEdit* WidgetMaker::MakeLong(const controls::Label& label) {
    return Mirrored<LongLabelAdapter>(label, new QPlainTextEdit);
}

QPushButton* WidgetMaker::MakeLink(controls::Label& label) {
    return Mirrored<LinkAdapter>(label, new LinkButton);
}

QTextEdit* WidgetMaker::Make(const controls::RichText& text) {
    return Mirrored<RichTextAdapter>(text, new RichTextPanel);
}

QPushButton* WidgetMaker::Make(controls::Button& button) {
    auto* widget = new QPushButton;
    widget->setIconSize({ToolIcon, ToolIcon});
    if (const QString shortcut = Shown(button.access.shortcut); !shortcut.isEmpty()) {
        // In addition to the mnemonic, which the button's own shortcut would replace.
        new QShortcut(QKeySequence(shortcut), widget, [widget] { widget->click(); });
    }
    return Mirrored<ButtonAdapter>(button, widget);
}

QLineEdit* WidgetMaker::Make(controls::TextBox& box) {
    return Mirrored<TextBoxAdapter>(box, new QLineEdit);
}

QCheckBox* WidgetMaker::Make(controls::CheckBox& box) {
    return Mirrored<CheckBoxAdapter>(box, new QCheckBox);
}

QWidget* WidgetMaker::Make(controls::OptionGroup& group, OptionLook look) {
    auto* widget = new QWidget;
    widget->setFocusPolicy(Qt::ClickFocus);  // a caption's mnemonic needs a focus policy
    auto* layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    const QList<QAbstractButton*> options = look == OptionLook::Pages
                                                ? MakeOptions<PageButton>(group)
                                                : MakeOptions<QRadioButton>(group);
    for (QAbstractButton* option : options) layout->addWidget(option);
    if (look == OptionLook::Pages)
        layout->setSpacing(0);
    else
        layout->addStretch();
    return Mirrored<OptionGroupAdapter>(group, widget, options);
}

QList<QAbstractButton*> WidgetMaker::MakeOptions(controls::OptionGroup& group) {
    return MakeOptions<QRadioButton>(group);
}

template <class Button>
QList<QAbstractButton*> WidgetMaker::MakeOptions(controls::OptionGroup& group) {
    QList<QAbstractButton*> options;
    for (int option = 0; option < group.Count(); ++option)
        options << Mirrored<OptionAdapter>(group.At(option), new Button);
    return options;
}

QComboBox* WidgetMaker::Make(controls::List& list) {
    return Mirrored<ListAdapter>(list, new ListWidget);
}

QListWidget* WidgetMaker::MakeListBox(controls::List& list) {
    return Mirrored<ListBoxAdapter>(list, new QListWidget);
}

GridWidget* WidgetMaker::Make(controls::Grid& grid) {
    return Mirrored<GridAdapter>(grid, new GridWidget(grid));
}

GraphWidget* WidgetMaker::Make(controls::Graph& graph) {
    return Mirrored<GraphAdapter>(graph, new GraphWidget(graph));
}

QLabel* WidgetMaker::Make(const controls::Picture& picture, int side) {
    return Mirrored<PictureAdapter>(picture, new QLabel, side);
}

QFrame* WidgetMaker::Make(const controls::Frame& frame) {
    return Mirrored<FrameAdapter>(frame, new QFrame);
}

QGroupBox* WidgetMaker::MakeGroup(const controls::Frame& frame) {
    return Mirrored<FrameAdapter>(frame, new QGroupBox(Shown(frame.caption.Get())));
}

QWidget* WidgetMaker::MakeAny(controls::Control& control) {
    return controls::Visit(control, [this](auto& own) -> QWidget* {
        if constexpr (requires { this->Make(own); })
            return Make(own);
        else
            return nullptr;
    });
}

QWidget* WidgetMaker::AddRow(QGridLayout& rows, controls::Control& control, QWidget* lead) {
    const controls::Field& field = *control.AsField();
    const int row = rows.rowCount();
    QWidget* editor = MakeAny(control);
    if (field.captionLabel) {
        auto* caption = new QLabel;
        caption->setBuddy(editor);
        rows.addWidget(Mirrored<LabelAdapter>(*field.captionLabel, caption, &control), row, 0);
    } else if (lead == nullptr) {
        lead = new QLabel(Shown(control.access.name));
    }
    if (lead != nullptr) rows.addWidget(lead, row, 0);
    rows.addWidget(editor, row, 1);
    if (field.unitLabel) rows.addWidget(Make(*field.unitLabel), row, 2);
    return editor;
}

template <class Own>
QAction* WidgetMaker::AddOwnEntry(QMenu& menu, Own& own) {
    QAction* action = menu.addAction(QString());
    action->setObjectName(QString::fromStdString(own.Name()));
    mirror_.Add(own, std::make_unique<EntryAdapter<Own>>(own, *action));
    return action;
}

QAction* WidgetMaker::AddEntry(QMenu& menu, controls::CheckBox& box) {
    return AddOwnEntry(menu, box);
}

QAction* WidgetMaker::AddEntry(QMenu& menu, controls::Button& button) {
    return AddOwnEntry(menu, button);
}

QAction* WidgetMaker::AddEntry(QMenu& menu, controls::MenuItem& item) {
    if (item.IsSeparator()) return menu.addSeparator();
    QAction* action = menu.addAction(QString());
    action->setShortcut(QKeySequence(Shown(item.access.shortcut)));
    action->setCheckable(item.checkable);
    action->setToolTip(Explanation(item));
    mirror_.Add(item, std::make_unique<MenuItemAdapter>(item, *action));
    return action;
}

}  // namespace kelvra::desktop
