// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/kinds.h"

#include <utility>

namespace kelvra::controls {

void TextBox::SetText(std::string text) {
    if (text_.Set(std::move(text))) change.Raise();
}

void TextBox::Type(std::string text) {
    text_.Set(std::move(text));
    edited_ = true;
    change.Raise();
}

void TextBox::Press(const Key& key) {
    keyDown.Raise(key);
    if (key == "Enter") RaiseCommit();
}

void TextBox::Leave() {
    if (edited_) RaiseCommit();
}

void TextBox::RaiseCommit() {
    edited_ = false;
    commit.Raise();
}

void CheckBox::SetChecked(bool checked) {
    if (checked_.Set(checked)) click.Raise();
}

void CheckBox::Toggle() {
    checked_.Set(!checked_.Get());
    click.Raise();
}

namespace {

std::vector<OptionGroup::Option> NumberedOptions(const std::string& name,
                                                 const std::vector<std::string>& captions) {
    std::vector<OptionGroup::Option> options;
    options.reserve(captions.size());
    for (const std::string& caption : captions)
        options.push_back({name + "(" + std::to_string(options.size()) + ")", caption});
    return options;
}

}  // namespace

OptionGroup::OptionGroup(Control& parent, const std::string& name,
                         const std::vector<std::string>& captions)
    : OptionGroup(parent, name, NumberedOptions(name, captions)) {}

OptionGroup::OptionGroup(Control& parent, std::string name, std::vector<Option> options)
    : Control(Kind::OptionGroup, parent, std::move(name)), options_(std::move(options)) {}

void OptionGroup::SetSelected(int option) {
    if (option < 0 || option >= static_cast<int>(options_.size())) return;
    if (selected_.Set(option)) click.Raise();
}

void OptionGroup::Select(int option) {
    selected_.Set(option);
    click.Raise();
}

void Window::PersonResizes(int width, int height) {
    place = Geometry{place->left, place->top, width, height};
    resize.Raise();
}

void Window::PersonCloses() {
    closeRequest.Raise();
    if (!closesByRule) visible = false;
}

}  // namespace kelvra::controls
