// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/control.h"

#include <utility>

namespace kelvra::controls {

const char* KindName(Kind kind) {
    constexpr const char* names[] = {
        "label", "button", "menu item", "text box",  "check box", "option group", "option",
        "list",  "grid",   "graph",     "rich text", "picture",   "frame",        "window",
    };
    return names[static_cast<int>(kind)];
}

Control::Control(Kind kind, Control& parent, std::string name, Access declared)
    : access(std::move(declared)),
      kind_(kind),
      name_(std::move(name)),
      parent_(&parent),
      changes_(parent.changes_) {
    parent.children_.push_back(this);
}

Control::Control(Kind kind, Changes& changes, std::string name)
    : kind_(kind), name_(std::move(name)), changes_(changes) {}

bool Control::EffectivelyEnabled() const {
    return enabled &&
           (parent_ == nullptr || parent_->kind_ == Kind::Window || parent_->EffectivelyEnabled());
}

bool Control::EffectivelyVisible() const {
    return visible &&
           (parent_ == nullptr || parent_->kind_ == Kind::Window || parent_->EffectivelyVisible());
}

}  // namespace kelvra::controls
