// SPDX-License-Identifier: GPL-3.0-or-later
// What every control has: a name, a place in its window's tree, and properties that mark the
// control as changed when they get a different value. Controls hold state and raise events. The
// rules that read and write them are elsewhere, and so is all drawing.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "controls/access.h"
#include "controls/changes.h"
#include "controls/colours.h"

namespace kelvra::controls {

enum class Kind {
    Label,
    Button,
    MenuItem,
    TextBox,
    CheckBox,
    OptionGroup,
    Option,
    List,
    Grid,
    Graph,
    RichText,
    Picture,
    Frame,
    Window,
};

// The kind's name for users and scripts: "text box".
const char* KindName(Kind kind);

class Control;
class Field;

// A value that marks its control when it changes. Writing the same value again costs a comparison.
template <class T>
class Property {
public:
    Property(Control& owner, T value) : owner_(owner), value_(std::move(value)) {}
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;

    const T& Get() const { return value_; }
    operator const T&() const {
        return value_;
    }  // NOLINT(google-explicit-constructor): reads like the value
    const T* operator->() const { return &value_; }

    // True if the value was a different one.
    bool Set(T value);
    Property& operator=(T value) {
        Set(std::move(value));
        return *this;
    }

private:
    Control& owner_;
    T value_;
};

class Control {
public:
    Control(Kind kind, Control& parent, std::string name, Access declared = {});
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    Kind GetKind() const { return kind_; }
    const std::string& Name() const { return name_; }
    Control* Parent() const { return parent_; }
    const std::vector<Control*>& Children() const { return children_; }

    // The control with its labels; null if it is no field.
    virtual const Field* AsField() const { return nullptr; }

    // What the user meets: a control is disabled or hidden by its own flag or by that of a frame or
    // group around it. Whether its window is hidden does not count.
    bool EffectivelyEnabled() const;
    bool EffectivelyVisible() const;

    void MarkChanged() { changes_.Add(*this); }

    Property<bool> enabled{*this, true};
    Property<bool> visible{*this, true};
    Property<std::string> tooltip{*this, {}};
    Property<std::optional<Colour>> back{*this, std::nullopt};
    Property<std::optional<Colour>> fore{*this, std::nullopt};
    Access access;  // from the declaration

protected:
    // A window: it has no parent.
    Control(Kind kind, Changes& changes, std::string name);

private:
    friend class Changes;

    Kind kind_;
    std::string name_;
    Control* parent_ = nullptr;
    Changes& changes_;
    std::vector<Control*> children_;
    bool marked_ = false;
};

template <class T>
bool Property<T>::Set(T value) {
    if (value_ == value) return false;
    value_ = std::move(value);
    owner_.MarkChanged();
    return true;
}

}  // namespace kelvra::controls
