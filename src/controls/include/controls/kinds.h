// SPDX-License-Identifier: GPL-3.0-or-later
// The simple kinds of controls. What the user does comes in through functions named after the act
// (Press, Type, ...), which always raise the event. The program writes to the properties, which
// raise an event only where their comment says so, and only for a different value.
#pragma once

#include <string>

#include "controls/control.h"
#include "controls/event.h"

namespace kelvra::controls {

// Sizes and places in twips, 15 to a pixel at 96 dpi.
struct Geometry {
    int left = 0, top = 0, width = 0, height = 0;
    bool operator==(const Geometry&) const = default;
};

// A key by its usual name: "F1", "Enter".
using Key = std::string;

// A control that takes the keyboard's focus.
class Focusable : public Control {
public:
    using Control::Control;

    Event<const Key&> keyDown;
    virtual void PressKey(const Key& key) { keyDown.Raise(key); }
};

class Label : public Control {
public:
    Label(Control& parent, std::string name, std::string captionText = {})
        : Control(Kind::Label, parent, std::move(name)), caption(*this, std::move(captionText)) {}

    Event<> click;  // for labels that act as links
    void Press() { click.Raise(); }

    Property<std::string> caption;
};

class Button : public Focusable {
public:
    Button(Control& parent, std::string name, std::string captionText = {},
           std::string pictureName = {}, Access declared = {})
        : Focusable(Kind::Button, parent, std::move(name), std::move(declared)),
          caption(*this, std::move(captionText)),
          picture(*this, std::move(pictureName)) {}

    Event<> click;
    void Press() { click.Raise(); }

    Property<std::string> caption;
    Property<std::string> picture;  // by name; empty for a button with a caption alone
    Property<std::string> tag{*this, {}};
};

// A menu, an entry of it, or a line between entries. Entries are children of their menu.
class MenuItem : public Control {
public:
    MenuItem(Control& parent, std::string name, std::string captionText, Access declared = {})
        : Control(Kind::MenuItem, parent, std::move(name), std::move(declared)),
          caption(*this, std::move(captionText)) {}

    Event<> click;
    void Press() { click.Raise(); }
    bool IsSeparator() const { return caption.Get() == "-"; }

    Property<std::string> caption;
    bool checkable = false;    // whether it has a place for a mark
    bool opensDialog = false;  // a front end adds "..." to the caption
    Property<bool> checked{*this, false};
};

class TextBox : public Focusable {
public:
    TextBox(Control& parent, std::string name)
        : Focusable(Kind::TextBox, parent, std::move(name)) {}

    const std::string& Text() const { return text_.Get(); }
    // The program's write: raises Change for a different text. Ends an edit without a commit.
    void SetText(std::string text);
    // Something has been typed since the last commit.
    bool Edited() const { return edited_; }

    // Why the text can't be used as it is; empty if it can.
    Property<std::string> fault{*this, {}};

    Event<> change;
    Event<> commit;  // Enter, or the user leaves the control after an edit

    void Type(std::string text);
    // Enter commits; every key is reported.
    void PressKey(const Key& key) override;
    // The user leaves the control: commits what was typed since the last commit.
    void Leave();

private:
    void RaiseCommit();

    Property<std::string> text_{*this, {}};
    bool edited_ = false;
};

class CheckBox : public Focusable {
public:
    CheckBox(Control& parent, std::string name, std::string captionText)
        : Focusable(Kind::CheckBox, parent, std::move(name)),
          caption(*this, std::move(captionText)) {}

    bool Checked() const { return checked_.Get(); }
    // The program's write: raises Click for a different state.
    void SetChecked(bool checked);

    Event<> click;
    void Toggle();

    Property<std::string> caption;

private:
    Property<bool> checked_{*this, false};
};

class RichText : public Control {
public:
    RichText(Control& parent, std::string name)
        : Control(Kind::RichText, parent, std::move(name)) {}

    Property<std::string> rtf{*this, {}};
};

class Picture : public Control {
public:
    Picture(Control& parent, std::string name, std::string pictureName = {}, Access declared = {})
        : Control(Kind::Picture, parent, std::move(name), std::move(declared)),
          image(*this, std::move(pictureName)) {}

    Property<std::string> image;  // by name
    Property<std::string> tag{*this, {}};
};

class Frame : public Control {
public:
    Frame(Control& parent, std::string name, std::string captionText = {}, Geometry startPlace = {})
        : Control(Kind::Frame, parent, std::move(name)),
          caption(*this, std::move(captionText)),
          place(*this, startPlace) {}

    Property<std::string> caption;
    Property<Geometry> place;
};

class Window : public Control {
public:
    Window(Changes& changes, std::string name, std::string captionText, Geometry startPlace)
        : Control(Kind::Window, changes, std::move(name)),
          caption(*this, std::move(captionText)),
          place(*this, startPlace) {
        visible = false;
    }

    // The user resizes the window, or asks it to close. The window's rule decides what a close
    // does; without a rule the window is hidden.
    Event<> resize;
    Event<> closeRequest;
    void PersonResizes(int width, int height);
    void PersonCloses();

    // The program shows the window in front of the others, also if it is visible already.
    void Present();
    Property<int> presented{*this, 0};  // how often

    Property<std::string> caption;
    Property<Geometry> place;
    Property<bool> topMost{*this, false};
    Property<bool> busy{*this, false};  // the mouse pointer says so
    Property<std::string> tag{*this, {}};

    // True if the window has a rule for the close.
    bool closesByRule = false;
};

}  // namespace kelvra::controls
