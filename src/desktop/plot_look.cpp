// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/plot_look.h"

namespace kelvra::desktop {

namespace {

constexpr qreal ChosenWidth = 3;
constexpr int TintAlpha = 60;  // of 255
constexpr int Looks = 8;

struct Row {
    PlotPart part{};
    QRgb shades[3]{};  // classic, calm, dark
    Qt::PenStyle line = Qt::SolidLine;
    qreal dashes[4]{};  // of a line of its own: drawn and left out, in pixels
};

// In the order of PlotPart.
constexpr Row Table[] = {
    {PlotPart::Ground, {0x000000, 0xFFFFFF, 0x16191D}},
    {PlotPart::Text, {0xFFFFFF, 0x1F2328, 0xE6E8EB}},
    {PlotPart::Grid, {0x404040, 0xD9DDE2, 0x323840}},
    {PlotPart::Curve, {0x40FF40, 0x0B57D0, 0x8AB4F8}},
    {PlotPart::Maximum, {0xFFFF70, 0xB3261E, 0xFF8A80}, Qt::DashLine},
    {PlotPart::Minimum, {0x60C0FF, 0x1A6B2F, 0x7BD88F}, Qt::DotLine},
    {PlotPart::Reference, {0xC8C8C8, 0x5B6470, 0xB4BEC8}, Qt::DashDotLine},
    {PlotPart::Box, {0xC080FF, 0x8430CE, 0xD7A6FF}},
    {PlotPart::Level, {0xFF6060, 0xC2007A, 0xFF7AC6}, Qt::DashDotLine},
    {PlotPart::Origin, {0xFFFFFF, 0x1F2328, 0xE6E8EB}},
    {PlotPart::ZoneStart, {0x00FFFF, 0x00707E, 0x5AD1E0}, Qt::DashLine},
    {PlotPart::ZoneStop, {0xFFB040, 0x9A5200, 0xFFC947}, Qt::DashDotDotLine},
    {PlotPart::Division, {0xA0A0A0, 0x767C84, 0x8A939D}, Qt::DotLine},
    {PlotPart::Limit, {0xFF6060, 0xB3261E, 0xFF8A80}, Qt::DashLine},
    // Also people who see fewer colours tell the series apart.
    {PlotPart::Series1, {0x40FF40, 0x0B57D0, 0x8AB4F8}},
    {PlotPart::Series2, {0x60A8F0, 0xC07860, 0xF0C078}, Qt::DashLine},
    {PlotPart::Series3, {0xF0C0A8, 0x900090, 0xF04878}, Qt::DotLine},
    {PlotPart::Series4, {0xF04860, 0x607800, 0x30F0C0}, Qt::DashDotLine},
    {PlotPart::Series5, {0xD8F090, 0xD81878, 0xD8F030}, Qt::DashDotDotLine},
    {PlotPart::Series6, {0x7860F0, 0xA878C0, 0xC030A8}, Qt::CustomDashLine, {12, 3, 12, 3}},
    {PlotPart::Series7, {0x907800, 0x780000, 0xF01800}, Qt::CustomDashLine, {12, 3, 1, 3}},
    {PlotPart::Series8, {0xC048A8, 0x480030, 0xA830F0}, Qt::CustomDashLine, {2, 5, 2, 5}},
};

constexpr bool InOrder() {
    int place = 0;
    for (const Row& row : Table)
        if (static_cast<int>(row.part) != place++) return false;
    return place == static_cast<int>(PlotPart::Series8) + 1;
}
static_assert(InOrder());

constexpr PlotMark Marks[] = {
    {PlotPart::Text, "graph, text"},
    {PlotPart::Curve, "graph, curve"},
    {PlotPart::Maximum, "graph, maximum"},
    {PlotPart::Minimum, "graph, minimum"},
    {PlotPart::Reference, "graph, reference"},
    {PlotPart::Box, "graph, box"},
    {PlotPart::Level, "graph, trigger level"},
    {PlotPart::Origin, "graph, trigger delay"},
    {PlotPart::ZoneStart, "graph, start of an exclusion"},
    {PlotPart::ZoneStop, "graph, end of an exclusion"},
    {PlotPart::Division, "graph, end of a time slot"},
    {PlotPart::Limit, "graph, limit"},
    {PlotPart::Series1, "graph, first sensor"},
    {PlotPart::Series2, "graph, second sensor"},
    {PlotPart::Series3, "graph, third sensor"},
    {PlotPart::Series4, "graph, fourth sensor"},
    {PlotPart::Series5, "graph, fifth sensor"},
    {PlotPart::Series6, "graph, sixth sensor"},
    {PlotPart::Series7, "graph, seventh sensor"},
    {PlotPart::Series8, "graph, eighth sensor"},
};

const Row& RowOf(PlotPart part) {
    return Table[static_cast<int>(part)];
}

}  // namespace

QColor PlotColour(PlotPart part) {
    return {RowOf(part).shades[static_cast<int>(CurrentScheme())]};
}

QPen PlotPen(PlotPart part, bool chosen) {
    const Row& row = RowOf(part);
    QPen pen(PlotColour(part), chosen ? ChosenWidth : 1, row.line);
    if (row.line == Qt::CustomDashLine)
        pen.setDashPattern({std::begin(row.dashes), std::end(row.dashes)});
    return pen;
}

QColor PlotTint(PlotPart part) {
    QColor colour = PlotColour(part);
    colour.setAlpha(TintAlpha);
    return colour;
}

PlotPart PartOf(controls::Held which) {
    switch (which) {
        case controls::Held::Maximum:
            return PlotPart::Maximum;
        case controls::Held::Minimum:
            return PlotPart::Minimum;
        case controls::Held::Reference:
            break;
    }
    return PlotPart::Reference;
}

PlotPart PartOf(controls::CursorLook look) {
    switch (look) {
        case controls::CursorLook::Level:
            return PlotPart::Level;
        case controls::CursorLook::Origin:
            return PlotPart::Origin;
        case controls::CursorLook::ZoneStart:
            return PlotPart::ZoneStart;
        case controls::CursorLook::ZoneStop:
            return PlotPart::ZoneStop;
        case controls::CursorLook::Division:
            break;
    }
    return PlotPart::Division;
}

PlotPart PartOf(const controls::Graph::Series& series) {
    return static_cast<PlotPart>(static_cast<int>(PlotPart::Series1) + series.look % Looks);
}

std::span<const PlotMark> PlotMarks() {
    return Marks;
}

}  // namespace kelvra::desktop
