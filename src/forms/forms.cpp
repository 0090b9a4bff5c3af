// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/forms.h"

namespace kelvra::forms {

namespace {

void Note(Found& found, controls::Control& control) {
    const Lookup result = found.result == Lookup::Unknown ? Lookup::Found : Lookup::NotUnique;
    found = result == Lookup::Found ? Found{result, &control} : Found{result};
}

// Looks at the control and everything in it.
void Search(controls::Control& control, std::string_view name, Found& found) {
    if (control.Name() == name) Note(found, control);
    for (controls::Control* child : control.Children()) Search(*child, name, found);
}

}  // namespace

std::vector<controls::Window*> Forms::Windows() {
    return {&mdiMain,   &statusForm, &setupForm, &scopeDisp,    &timeSlotDisp, &timeSlotTabForm,
            &trendForm, &timeForm,   &aboutForm, &sensInfoForm, &copyForm};
}

controls::Window* Forms::FindFormByName(std::string_view name) {
    for (controls::Window* window : Windows())
        if (window->Name() == name) return window;
    return nullptr;
}

Found Forms::Find(std::string_view name) {
    Found found;
    const std::size_t dot = name.find('.');
    if (dot == std::string_view::npos) {
        for (controls::Window* window : Windows()) Search(*window, name, found);
    } else if (controls::Window* window = FindFormByName(name.substr(0, dot))) {
        for (controls::Control* child : window->Children())
            Search(*child, name.substr(dot + 1), found);
    }
    return found;
}

}  // namespace kelvra::forms
