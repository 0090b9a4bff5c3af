// SPDX-License-Identifier: GPL-3.0-or-later
// Adapters of the controls in a form: text boxes, check boxes, groups of options.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QLineEdit>
#include <optional>
#include <string>

#include "controls/kinds.h"
#include "controls/option_group.h"
#include "desktop/widget_adapter.h"

namespace kelvra::desktop {

// Each letter is typed into the record; Enter, and leaving the control, commit. A text that is
// being typed stays unless the record gets a different one. A text that can't be used gets a sign,
// and the tooltip says why.
class TextBoxAdapter final : public WidgetAdapter {
public:
    TextBoxAdapter(controls::TextBox& box, QLineEdit& widget);
    void Update() override;

private:
    void ShowText(const QString& text);
    void ShowFault();

    controls::TextBox& box_;
    QLineEdit& widget_;
    QAction* sign_ = nullptr;  // in the box; made for the first fault
};

class CheckBoxAdapter final : public WidgetAdapter {
public:
    CheckBoxAdapter(controls::CheckBox& box, QCheckBox& widget);
    void Update() override;

private:
    controls::CheckBox& box_;
    QCheckBox& widget_;
    std::optional<std::string> shown_;  // caption
};

// One option of a group; the options share a parent and exclude each other.
class OptionAdapter final : public WidgetAdapter {
public:
    OptionAdapter(controls::Option& option, QAbstractButton& widget);
    void Update() override;

private:
    controls::Option& option_;
    QAbstractButton& widget_;
    std::optional<std::string> shown_;  // caption
};

// The widget that contains the options; the keyboard reaches the selected one.
class OptionGroupAdapter final : public WidgetAdapter {
public:
    OptionGroupAdapter(const controls::OptionGroup& group, QWidget& widget,
                       QList<QAbstractButton*> options)
        : group_(group), widget_(widget), options_(std::move(options)) {}
    void Update() override;

private:
    const controls::OptionGroup& group_;
    QWidget& widget_;
    QList<QAbstractButton*> options_;
};

// Reports the widget's keys to the record, under their usual names, before the widget acts on them.
void ReportKeys(controls::Focusable& control, QWidget& widget);

}  // namespace kelvra::desktop
