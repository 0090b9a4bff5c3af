// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/option_group.h"

#include <utility>

namespace kelvra::controls {

Option::Option(OptionGroup& group, int number, OptionMember member)
    : Focusable(Kind::Option, group, std::move(member.name), std::move(member.access)),
      caption(*this, std::move(member.caption)),
      group_(group),
      number_(number) {
    tooltip = std::move(member.tooltip);
}

bool Option::Checked() const {
    return group_.Selected() == number_;
}

void Option::Press() {
    group_.Select(number_);
}

OptionGroup::OptionGroup(Control& parent, std::string name, std::vector<OptionMember> members)
    : Control(Kind::OptionGroup, parent, std::move(name)) {
    for (OptionMember& member : members)
        options_.push_back(std::make_unique<Option>(*this, Count(), std::move(member)));
}

void OptionGroup::SetSelected(int option) {
    if (option >= 0 && option < Count() && Change(option)) click.Raise();
}

void OptionGroup::Select(int option) {
    Change(option);
    click.Raise();
}

bool OptionGroup::Change(int option) {
    if (option == selected_) return false;
    for (const int shown : {selected_, option}) At(shown).MarkChanged();
    selected_ = option;
    MarkChanged();
    return true;
}

}  // namespace kelvra::controls
