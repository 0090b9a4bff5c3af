// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/kinds.h"

#include <utility>

namespace kelvra::controls {

void TextBox::SetText(std::string text) {
    edited_ = false;
    if (text_.Set(std::move(text))) change.Raise();
}

void TextBox::Type(std::string text) {
    text_.Set(std::move(text));
    edited_ = true;
    change.Raise();
}

void TextBox::PressKey(const Key& key) {
    Focusable::PressKey(key);
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

void Window::PersonResizes(int width, int height) {
    place = Geometry{place->left, place->top, width, height};
    resize.Raise();
}

void Window::PersonCloses() {
    closeRequest.Raise();
    if (!closesByRule) visible = false;
}

void Window::Present() {
    visible = true;
    presented = presented + 1;
}

}  // namespace kelvra::controls
