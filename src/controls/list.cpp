// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/list.h"

#include <algorithm>
#include <utility>

namespace kelvra::controls {

namespace {

template <class Test>
int FirstIndex(const std::vector<List::Item>& items, Test test) {
    const auto found = std::find_if(items.begin(), items.end(), test);
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

}  // namespace

List::List(Control& parent, std::string name, std::vector<Item> items, int index, Access declared)
    : Focusable(Kind::List, parent, std::move(name), std::move(declared)),
      items_(std::move(items)),
      index_(index) {}

std::string List::Text() const {
    return index_ < 0 ? std::string{} : items_[static_cast<std::size_t>(index_)].text;
}

int List::Data() const {
    return index_ < 0 ? -1 : items_[static_cast<std::size_t>(index_)].data;
}

int List::IndexOfData(int data) const {
    return FirstIndex(items_, [&](const Item& item) { return item.data == data; });
}

int List::IndexOfText(std::string_view text) const {
    return FirstIndex(items_, [&](const Item& item) { return item.text == text; });
}

void List::Fill(std::vector<Item> items) {
    if (items == items_ && index_ < 0) return;
    items_ = std::move(items);
    index_ = -1;
    MarkChanged();
}

void List::Add(std::string text, int data) {
    items_.push_back({std::move(text), data});
    MarkChanged();
}

void List::Preselect(int index) {
    Select(index);
}

void List::SetIndex(int index) {
    if (Select(index)) click.Raise();
}

void List::Choose(int index) {
    Select(index);
    click.Raise();
}

bool List::Select(int index) {
    const int valid = index >= 0 && index < Count() ? index : -1;
    if (valid == index_) return false;
    index_ = valid;
    MarkChanged();
    return true;
}

}  // namespace kelvra::controls
