// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of a page or group in a dialog: caption, editor and unit in columns that line up from
// group to group, in the order in which the Tab key goes through them.
#pragma once

#include <QGridLayout>
#include <initializer_list>

#include "controls/field.h"
#include "desktop/widget_maker.h"

namespace kelvra::desktop {

class FormRows {
public:
    // Lays out `frame`.
    FormRows(QWidget& frame, WidgetMaker& maker);

    // A row for each field.
    void Add(std::initializer_list<controls::Control*> fields);
    // A check box or an option, and the field that belongs to it.
    void Add(QWidget* lead, controls::Control& field);
    // Controls side by side over the whole width.
    void AddLine(std::initializer_list<controls::Control*> controls);
    void AddWide(QWidget* widget);
    // A group's options side by side; the group is a field.
    void AddOptions(controls::OptionField& group);
    // A caption, and what takes the columns of the editor and the unit.
    void AddCaptioned(QWidget* caption, QWidget* widget);
    // Keeps the rows together at the top.
    void End();

    // Puts something behind the last row's unit.
    void Append(QWidget* widget);

    WidgetMaker& Maker() { return maker_; }

private:
    WidgetMaker& maker_;
    QGridLayout& grid_;
};

// Makes a box as wide as a number needs.
void SizeAsNumber(QWidget& box);

}  // namespace kelvra::desktop
