// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/option_group.h"

#include <utility>

namespace kelvra::controls {

namespace {

std::vector<OptionMember> Numbered(const std::string& name,
                                   const std::vector<std::string>& captions) {
    std::vector<OptionMember> members;
    members.reserve(captions.size());
    for (const std::string& caption : captions)
        members.push_back({name + "(" + std::to_string(members.size()) + ")", caption});
    return members;
}

}  // namespace

Option::Option(OptionGroup& group, int number, OptionMember member)
    : Focusable(Kind::Option, group, std::move(member.name), {.helpTopic = member.helpTopic}),
      caption(*this, std::move(member.caption)),
      group_(group),
      number_(number) {}

bool Option::Checked() const {
    return group_.Selected() == number_;
}

void Option::Press() {
    group_.Select(number_);
}

OptionGroup::OptionGroup(Control& parent, const std::string& name,
                         const std::vector<std::string>& captions)
    : OptionGroup(parent, name, Numbered(name, captions)) {}

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
