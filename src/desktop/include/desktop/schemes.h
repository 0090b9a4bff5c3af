// SPDX-License-Identifier: GPL-3.0-or-later
// The colour schemes. Classic shows the rules' colours as they are; the others map each of them by
// what it colours. The scheme is the application's, as its palette is.
#pragma once

#include <QColor>
#include <QStringList>
#include <optional>
#include <span>

#include "controls/colours.h"

namespace kelvra::desktop {

enum class Scheme { Classic, Calm, Dark };
constexpr Scheme Schemes[] = {Scheme::Classic, Scheme::Calm, Scheme::Dark};
const char* NameOf(Scheme scheme);

Scheme CurrentScheme();  // Classic at first
// Also sets the application's palette. Widgets that are there must be shown again.
void UseScheme(Scheme scheme);

// What a colour of the rules colours.
enum class Part { Surface, Cell, Heading, Text };

// In the current scheme.
QColor PaintColour(Part part, controls::Colour colour);
// Colours that no rule knows of.
enum class OwnColour { Focus, Selection, Fault, Warning, Outline };
QColor PaintColour(OwnColour colour);
// What is readable on this background.
QColor TextOn(const QColor& back);
// The text of a reading that is no longer live: between the text's colour and the background.
QColor StaleTextOn(const QColor& back);

// Contrast of two colours, 1 to 21 (WCAG 2.1, relative luminance).
double Contrast(const QColor& a, const QColor& b);

// Every pair of a text and its background that the windows use, for checks.
struct Pair {
    const char* what = "";
    Part backPart{};
    controls::Colour back = 0;
    std::optional<controls::Colour> text;  // none: TextOn
    bool stale = false;
};
std::span<const Pair> Pairs();

}  // namespace kelvra::desktop
