// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/schemes.h"

#include <QApplication>
#include <QPalette>
#include <QVariant>
#include <algorithm>
#include <cmath>

namespace kelvra::desktop {

namespace {

using controls::Colour;

constexpr const char* SchemeProperty = "colourScheme";
constexpr double StaleShare = 0.38;  // of the background
constexpr int SchemeCount = 3;

QColor FromRule(Colour colour) {
    return {static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
            static_cast<int>(colour >> 16 & 0xFF)};
}

struct Row {
    Part part{};
    Colour rule = 0;
    QRgb calm = 0;
    QRgb dark = 0;
};

constexpr Row Table[] = {
    {Part::Surface, controls::DarkBlue, 0xF3F4F6, 0x1E2227},  // the strip of tools
    {Part::Surface, controls::Blue, 0xFFFFFF, 0x16191D},      // windows, a table's empty part
    {Part::Surface, controls::Cyan, 0xD8F1F7, 0x15424D},      // the trigger level's box
    {Part::Surface, controls::Grey, 0xDDE2E8, 0x3A4149},      // the same, without effect
    {Part::Cell, controls::Cyan, 0xF7F9FB, 0x1B1F24},         // no value
    {Part::Cell, controls::White, 0xFFFFFF, 0x262C33},        // a reading
    {Part::Cell, controls::Grey, 0xDDE2E8, 0x3A4149},         // off, absent, an array
    {Part::Cell, controls::Green, 0xCDEBD3, 0x1F5130},        // on
    {Part::Cell, controls::Yellow, 0xFFE58A, 0x6B5A12},       // gets its settings
    {Part::Cell, controls::Orange, 0xFFCB94, 0x73440F},       // is zeroed or tested
    {Part::Cell, controls::Rose, 0xFFD3CF, 0x6E2B2B},         // a reading outside its limits
    {Part::Heading, controls::DarkCyan, 0xE1E6EC, 0x2A3037},
    {Part::Text, controls::Red, 0xB3261E, 0xFF8A80},
    {Part::Text, controls::Green, 0x1A6B2F, 0x7BD88F},
};

struct OwnRow {
    OwnColour colour{};
    QRgb shades[SchemeCount]{};
};

// In the order of OwnColour.
constexpr OwnRow OwnTable[] = {
    {OwnColour::Focus, {0xFFFF00, 0x0B57D0, 0x8AB4F8}},
    {OwnColour::Selection, {0x0000FF, 0x0B57D0, 0x8AB4F8}},
    {OwnColour::Fault, {0xD00000, 0xB3261E, 0xFF8A80}},
    {OwnColour::Warning, {0xFFD040, 0x8A5A00, 0xFFC947}},
    {OwnColour::Outline, {0x7A828A, 0x7A828A, 0x7D8791}},
};

constexpr Pair AllPairs[] = {
    {"tools, text", Part::Surface, controls::DarkBlue, {}},
    {"tools, \"Simulation Mode\"", Part::Surface, controls::DarkBlue, controls::Red},
    {"tools, sensors connected", Part::Surface, controls::DarkBlue, controls::Green},
    {"window, text", Part::Surface, controls::Blue, {}},
    {"trigger level", Part::Surface, controls::Cyan, {}},
    {"trigger level without effect", Part::Surface, controls::Grey, {}},
    {"heading", Part::Heading, controls::DarkCyan, {}},
    {"cell without a value", Part::Cell, controls::Cyan, {}},
    {"reading", Part::Cell, controls::White, {}},
    {"reading that is not live", Part::Cell, controls::White, {}, true},
    {"sensor that is on", Part::Cell, controls::Green, {}},
    {"sensor that is off", Part::Cell, controls::Grey, {}},
    {"CONF", Part::Cell, controls::Yellow, {}},
    {"ZERO, TEST", Part::Cell, controls::Orange, {}},
    {"reading outside its limits", Part::Cell, controls::Rose, {}},
};

QPalette PaletteOf(Scheme scheme) {
    if (scheme == Scheme::Classic) return {};
    const bool dark = scheme == Scheme::Dark;
    const QColor text = dark ? QColor(0xE6E8EB) : QColor(0x1F2328);
    const QColor faint = dark ? QColor(0x9AA3AD) : QColor(0x656D76);
    QPalette palette(dark ? QColor(0x2F363E) : QColor(0xE6E9ED),
                     dark ? QColor(0x1E2227) : QColor(0xF3F4F6));
    palette.setColor(QPalette::Base, dark ? QColor(0x16191D) : QColor(0xFFFFFF));
    palette.setColor(QPalette::AlternateBase, dark ? QColor(0x1E2227) : QColor(0xF3F4F6));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::ToolTipBase, dark ? QColor(0x2F363E) : QColor(0xFFFFFF));
    palette.setColor(QPalette::Highlight, dark ? QColor(0x8AB4F8) : QColor(0x0B57D0));
    palette.setColor(QPalette::HighlightedText, dark ? QColor(0x101418) : QColor(0xFFFFFF));
    palette.setColor(QPalette::Link, dark ? QColor(0x8AB4F8) : QColor(0x0B57D0));
    return palette;
}

double Linear(double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& colour) {
    return 0.2126 * Linear(colour.redF()) + 0.7152 * Linear(colour.greenF()) +
           0.0722 * Linear(colour.blueF());
}

}  // namespace

const char* NameOf(Scheme scheme) {
    constexpr const char* names[] = {"Classic", "Calm", "Dark"};
    return names[static_cast<int>(scheme)];
}

Scheme CurrentScheme() {
    return static_cast<Scheme>(qApp->property(SchemeProperty).toInt());
}

void UseScheme(Scheme scheme) {
    if (scheme == CurrentScheme()) return;
    qApp->setProperty(SchemeProperty, static_cast<int>(scheme));
    QApplication::setPalette(PaletteOf(scheme));
}

QColor PaintColour(Part part, Colour colour) {
    const Scheme scheme = CurrentScheme();
    if (scheme == Scheme::Classic) return FromRule(colour);
    const auto* row = std::find_if(std::begin(Table), std::end(Table), [&](const Row& candidate) {
        return candidate.part == part && candidate.rule == colour;
    });
    if (row == std::end(Table)) return FromRule(colour);
    return {scheme == Scheme::Calm ? row->calm : row->dark};
}

QColor PaintColour(OwnColour colour) {
    return {OwnTable[static_cast<int>(colour)].shades[static_cast<int>(CurrentScheme())]};
}

QColor TextOn(const QColor& back) {
    const QColor dark = CurrentScheme() == Scheme::Classic ? QColor(Qt::black) : QColor(0x1F2328);
    const QColor light = CurrentScheme() == Scheme::Dark ? QColor(0xE6E8EB) : QColor(Qt::white);
    return Contrast(dark, back) >= Contrast(light, back) ? dark : light;
}

QColor StaleTextOn(const QColor& back) {
    const QColor text = TextOn(back);
    const auto mixed = [&](int of, int with) {
        return static_cast<int>(std::lround(of + (with - of) * StaleShare));
    };
    return {mixed(text.red(), back.red()), mixed(text.green(), back.green()),
            mixed(text.blue(), back.blue())};
}

double Contrast(const QColor& a, const QColor& b) {
    const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

std::span<const Pair> Pairs() {
    return AllPairs;
}

}  // namespace kelvra::desktop
