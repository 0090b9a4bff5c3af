// SPDX-License-Identifier: GPL-3.0-or-later
// The kinds of controls under their short names, so that a declaration of a form fits on a line.
#pragma once

#include "controls/field.h"
#include "controls/grid.h"

namespace kelvra::forms {

using controls::Button;
using controls::CheckBox;
using controls::CheckField;
using controls::Frame;
using controls::Grid;
using controls::Label;
using controls::List;
using controls::ListField;
using controls::MenuItem;
using controls::OptionField;
using controls::OptionGroup;
using controls::OptionMember;
using controls::Picture;
using controls::TextBox;
using controls::TextField;
using controls::Window;

}  // namespace kelvra::forms
