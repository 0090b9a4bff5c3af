// SPDX-License-Identifier: GPL-3.0-or-later
// The one place that creates the widget of a control: by its kind, with its accessible name and its
// keys as the form declares them, and mirrored from here on. Views decide where widgets go, and
// what is special about them there.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

#include "controls/field.h"
#include "desktop/grid_widget.h"
#include "desktop/mirror.h"

namespace kelvra::desktop {

class WidgetMaker {
public:
    explicit WidgetMaker(Mirror& mirror) : mirror_(mirror) {}

    // The caller puts the widget into a layout or a parent. A picture's side is in logical pixels.
    QLabel* Make(const controls::Label& label) { return Make(label, new QLabel); }
    QLabel* Make(const controls::Label& label, QLabel* widget);
    QPushButton* Make(controls::Button& button);
    QLineEdit* Make(controls::TextBox& box);
    QCheckBox* Make(controls::CheckBox& box);
    QWidget* Make(controls::OptionGroup& group);  // options in a column
    QComboBox* Make(controls::List& list);
    GridWidget* Make(controls::Grid& grid);
    QLabel* Make(const controls::Picture& picture, int side = ToolIcon);
    QFrame* Make(const controls::Frame& frame);

    // By the control's kind. Null for windows, menu entries and options, which are no widgets of
    // their own, and for kinds that no window uses yet.
    QWidget* MakeAny(controls::Control& control);

    // Adds a row at the end: caption, editor and unit of the field, in columns of their own. The
    // caption's mnemonic leads to the editor. The control must be a field.
    void AddRow(QGridLayout& rows, controls::Control& control);

    // Also for a separator.
    QAction* AddEntry(QMenu& menu, controls::MenuItem& item);

    static constexpr int ToolIcon = 28;

private:
    template <class AdapterKind, class Own, class Widget, class... More>
    Widget* Mirrored(Own& control, Widget* widget, More&&... more);

    Mirror& mirror_;
};

}  // namespace kelvra::desktop
