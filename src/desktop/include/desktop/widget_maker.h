// SPDX-License-Identifier: GPL-3.0-or-later
// The one place that creates the widget of a control: by its kind, with its accessible name and its
// keys as the form declares them, and mirrored from here on. Views decide where widgets go, and
// what is special about them there.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextEdit>

#include "controls/field.h"
#include "controls/graph.h"
#include "desktop/grid_widget.h"
#include "desktop/mirror.h"

namespace kelvra::desktop {

class GraphWidget;

// How the options of a group are shown: as radio buttons, or as buttons that choose a page.
enum class OptionLook { Row, Pages };

class WidgetMaker {
public:
    explicit WidgetMaker(Mirror& mirror) : mirror_(mirror) {}

    // The caller puts the widget into a layout or a parent. A picture's side is in logical pixels.
    QLabel* Make(const controls::Label& label) { return Make(label, new QLabel); }
    QLabel* Make(const controls::Label& label, QLabel* widget);
    QPlainTextEdit* MakeLong(const controls::Label& label);  // with scroll bars
    QPushButton* MakeLink(controls::Label& label);           // a label that can be pressed
    QTextEdit* Make(const controls::RichText& text);
    QPushButton* Make(controls::Button& button);
    QLineEdit* Make(controls::TextBox& box);
    QCheckBox* Make(controls::CheckBox& box);
    QWidget* Make(controls::OptionGroup& group, OptionLook look = OptionLook::Row);
    // The options alone, for a page that puts other controls between them. They must get the same
    // parent.
    QList<QAbstractButton*> MakeOptions(controls::OptionGroup& group);
    QComboBox* Make(controls::List& list);
    QListWidget* MakeListBox(controls::List& list);  // all entries in sight
    GridWidget* Make(controls::Grid& grid);
    GraphWidget* Make(controls::Graph& graph);
    QLabel* Make(const controls::Picture& picture, int side = ToolIcon);
    QFrame* Make(const controls::Frame& frame);
    QGroupBox* MakeGroup(const controls::Frame& frame);  // with its caption

    // By the control's kind. Null for windows, menu entries and options, which are no widgets of
    // their own, and for kinds that no window uses yet.
    QWidget* MakeAny(controls::Control& control);

    // Adds a row at the end: caption, editor and unit of the field, in columns of their own. The
    // caption's mnemonic leads to the editor. Where the field has no caption, `lead` takes
    // its place, or else the control's name. The control must be a field. Returns the editor.
    QWidget* AddRow(QGridLayout& rows, controls::Control& control, QWidget* lead = nullptr);

    // Also for a separator.
    QAction* AddEntry(QMenu& menu, controls::MenuItem& item);
    QAction* AddEntry(QMenu& menu, controls::CheckBox& box);
    QAction* AddEntry(QMenu& menu, controls::Button& button);

    static constexpr int ToolIcon = 28;

private:
    template <class Own>
    QAction* AddOwnEntry(QMenu& menu, Own& own);
    template <class Button>
    QList<QAbstractButton*> MakeOptions(controls::OptionGroup& group);
    template <class AdapterKind, class Own, class Widget, class... More>
    Widget* Mirrored(Own& control, Widget* widget, More&&... more);

    Mirror& mirror_;
};

}  // namespace kelvra::desktop
