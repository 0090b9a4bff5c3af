// SPDX-License-Identifier: GPL-3.0-or-later
// A list of texts, each with a number of the program's (its item data); drop-down or open.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"
#include "controls/event.h"
#include "controls/kinds.h"

namespace kelvra::controls {

class List : public Focusable {
public:
    struct Item {
        std::string text;
        int data = 0;
        bool operator==(const Item&) const = default;
    };

    List(Control& parent, std::string name, std::vector<Item> items = {}, int index = -1,
         Access declared = {});

    const std::vector<Item>& Items() const { return items_; }
    int Count() const { return static_cast<int>(items_.size()); }
    int Index() const { return index_; }  // -1: nothing is selected
    // Text of the selected entry, empty without one.
    std::string Text() const;
    // Item data of the selected entry, -1 without one.
    int Data() const;

    // Index of the first entry with that item data or text, -1 if there is none.
    int IndexOfData(int data) const;
    int IndexOfText(std::string_view text) const;

    // Replaces the entries and selects none. Raises no event.
    void Fill(std::vector<Item> items);
    void Clear() { Fill({}); }
    void Add(std::string text, int data = 0);
    // Selects an entry without an event, as part of filling.
    void Preselect(int index);

    // The program's write: raises Click for a different index. An index beyond the entries selects
    // none.
    void SetIndex(int index);

    Event<> click;
    Event<> dropDown;
    void Choose(int index);
    void Open() { dropDown.Raise(); }

private:
    bool Select(int index);

    std::vector<Item> items_;
    int index_;
};

}  // namespace kelvra::controls
