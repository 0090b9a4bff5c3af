// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widget_maker.h"

#include <QShortcut>
#include <QVBoxLayout>
#include <memory>
#include <utility>

#include "controls/visit.h"
#include "desktop/common.h"
#include "desktop/entry_adapters.h"
#include "desktop/grid_adapter.h"
#include "desktop/qt_text.h"
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

QWidget* WidgetMaker::Make(controls::OptionGroup& group) {
    auto* widget = new QWidget;
    widget->setFocusPolicy(Qt::ClickFocus);  // a caption's mnemonic needs a focus policy
    auto* layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    QList<QRadioButton*> options;
    for (int option = 0; option < group.Count(); ++option) {
        options << new QRadioButton(widget);
        layout->addWidget(Mirrored<OptionAdapter>(group.At(option), options.last()));
    }
    return Mirrored<OptionGroupAdapter>(group, widget, options);
}

QComboBox* WidgetMaker::Make(controls::List& list) {
    return Mirrored<ListAdapter>(list, new ListWidget);
}

GridWidget* WidgetMaker::Make(controls::Grid& grid) {
    return Mirrored<GridAdapter>(grid, new GridWidget(grid));
}

QLabel* WidgetMaker::Make(const controls::Picture& picture, int side) {
    return Mirrored<PictureAdapter>(picture, new QLabel, side);
}

QFrame* WidgetMaker::Make(const controls::Frame& frame) {
    return Mirrored<FrameAdapter>(frame, new QFrame);
}

QWidget* WidgetMaker::MakeAny(controls::Control& control) {
    return controls::Visit(control, [this](auto& own) -> QWidget* {
        if constexpr (requires { this->Make(own); })
            return Make(own);
        else
            return nullptr;
    });
}

void WidgetMaker::AddRow(QGridLayout& rows, controls::Control& control) {
    const controls::Field& field = *control.AsField();
    const int row = rows.rowCount();
    QWidget* editor = MakeAny(control);
    if (field.captionLabel) {
        auto* caption = new QLabel;
        caption->setBuddy(editor);
        rows.addWidget(Mirrored<LabelAdapter>(*field.captionLabel, caption, &control), row, 0);
    }
    rows.addWidget(editor, row, 1);
    if (field.unitLabel) rows.addWidget(Make(*field.unitLabel), row, 2);
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
