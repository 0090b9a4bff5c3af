// SPDX-License-Identifier: GPL-3.0-or-later
// Options of which one is selected. Each is a small control inside the group, with its own name,
// tooltip and enabled flag.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "controls/kinds.h"

namespace kelvra::controls {

class OptionGroup;

// An option as a form declares it.
struct OptionMember {
    std::string name;
    std::string caption;
    Access access{};
    std::string tooltip{};
};

class Option : public Focusable {
public:
    Option(OptionGroup& group, int number, OptionMember member);

    bool Checked() const;
    void Press();  // the user selects it

    Property<std::string> caption;

private:
    OptionGroup& group_;
    int number_;
};

class OptionGroup : public Control {
public:
    OptionGroup(Control& parent, std::string name, std::vector<OptionMember> members);

    int Count() const { return static_cast<int>(options_.size()); }
    Option& At(int option) { return *options_[static_cast<std::size_t>(option)]; }
    const Option& At(int option) const { return *options_[static_cast<std::size_t>(option)]; }

    int Selected() const { return selected_; }
    // The program's write: raises Click for a different option. Ignores options outside 0 .. n-1.
    void SetSelected(int option);

    Event<> click;
    void Select(int option);
    // The focus is on the selected option.
    void PressKey(const Key& key) { At(selected_).PressKey(key); }

private:
    bool Change(int option);

    std::vector<std::unique_ptr<Option>> options_;
    int selected_ = 0;
};

}  // namespace kelvra::controls
