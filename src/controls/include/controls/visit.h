// SPDX-License-Identifier: GPL-3.0-or-later
// The one place that turns a control into its kind. It calls the visitor with the control as its
// own type, Label& or Grid&. The visitor returns the same type for every kind.
#pragma once

#include <type_traits>

#include "controls/graph.h"
#include "controls/grid.h"
#include "controls/kinds.h"
#include "controls/list.h"
#include "controls/option_group.h"

namespace kelvra::controls {

template <class T>
T& Own(Control& control) {
    return static_cast<T&>(control);
}
template <class T>
const T& Own(const Control& control) {
    return static_cast<const T&>(control);
}

// Takes a Control or a const Control. Pass a form's own control as its base.
template <class AnyControl, class Visitor>
requires std::is_same_v<std::remove_const_t<AnyControl>, Control>
decltype(auto) Visit(AnyControl& control, Visitor&& visitor) {
    switch (control.GetKind()) {
        case Kind::Label:
            return visitor(Own<Label>(control));
        case Kind::Button:
            return visitor(Own<Button>(control));
        case Kind::MenuItem:
            return visitor(Own<MenuItem>(control));
        case Kind::TextBox:
            return visitor(Own<TextBox>(control));
        case Kind::CheckBox:
            return visitor(Own<CheckBox>(control));
        case Kind::OptionGroup:
            return visitor(Own<OptionGroup>(control));
        case Kind::Option:
            return visitor(Own<Option>(control));
        case Kind::List:
            return visitor(Own<List>(control));
        case Kind::Grid:
            return visitor(Own<Grid>(control));
        case Kind::Graph:
            return visitor(Own<Graph>(control));
        case Kind::RichText:
            return visitor(Own<RichText>(control));
        case Kind::Picture:
            return visitor(Own<Picture>(control));
        case Kind::Frame:
            return visitor(Own<Frame>(control));
        case Kind::Window:
            break;
    }
    return visitor(Own<Window>(control));
}

// The control as a T (or const T), null if it is another kind.
template <class T, class AnyControl>
T* As(AnyControl& control) {
    return Visit(control, [](auto& own) -> T* {
        if constexpr (std::is_same_v<decltype(own), T&>)
            return &own;
        else
            return nullptr;
    });
}

}  // namespace kelvra::controls
