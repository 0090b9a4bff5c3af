// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/colour_roles.h"

#include "desktop/schemes.h"

namespace kelvra::desktop {

namespace {

using controls::Kind;

struct Roles {
    QPalette::ColorRole back = QPalette::NoRole;
    QPalette::ColorRole fore = QPalette::NoRole;
};

constexpr Roles Surface{QPalette::Window, QPalette::WindowText};
constexpr Roles Key{QPalette::Button, QPalette::ButtonText};
constexpr Roles Sheet{QPalette::Base, QPalette::Text};
constexpr Roles None{};

struct KindRoles {
    Kind kind{};
    Roles roles;
};

// In the order of the kinds.
constexpr KindRoles Table[] = {
    {Kind::Label, Surface},  {Kind::Button, Key},       {Kind::MenuItem, None},
    {Kind::TextBox, Sheet},  {Kind::CheckBox, Surface}, {Kind::OptionGroup, Surface},
    {Kind::Option, Surface}, {Kind::List, Key},         {Kind::Grid, None},
    {Kind::Graph, Sheet},    {Kind::RichText, Sheet},   {Kind::Picture, Surface},
    {Kind::Frame, Surface},  {Kind::Window, Surface},
};

constexpr bool InOrder() {
    int place = 0;
    for (const KindRoles& row : Table)
        if (static_cast<int>(row.kind) != place++) return false;
    return place == static_cast<int>(Kind::Window) + 1;
}
static_assert(InOrder());

}  // namespace

void UpdateColours(QWidget& widget, const controls::Control& control) {
    const Roles roles = Table[static_cast<int>(control.GetKind())].roles;
    if (roles.back == QPalette::NoRole) return;
    const auto& back = control.back.Get();
    const auto& fore = control.fore.Get();
    QPalette own;  // colours that are not set come from the palette around the widget
    own.setResolveMask(0);
    if (back) {
        const QColor colour = PaintColour(Part::Surface, *back);
        own.setColor(roles.back, colour);
        own.setColor(roles.fore, TextOn(colour));
    }
    if (fore) own.setColor(roles.fore, PaintColour(Part::Text, *fore));
    widget.setPalette(own);
    if (roles.back == QPalette::Window) widget.setAutoFillBackground(back.has_value());
}

}  // namespace kelvra::desktop
