// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_measures.h"

#include <QFontMetrics>
#include <algorithm>
#include <cmath>
#include <numeric>

#include "desktop/common.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

constexpr int RowMargin = 8;        // above and below a text together
constexpr int GridLine = 1;         // at the right of a cell
constexpr qreal MinorShare = 0.45;  // of the readings' size
constexpr qreal MostScale = 40;
constexpr int Third = 3;
constexpr int MainColumn = 0;  // never a minor one

QFont Scaled(QFont font, qreal scale) {
    font.setPointSizeF(font.pointSizeF() * scale);
    return font;
}

int HeadingLines(const controls::Grid& grid) {
    qsizetype lines = 1;
    for (int column = 0; column < grid.Columns(); ++column)
        lines = std::max(lines, 1 + Shown(grid.At(0, column).Text()).count('\n'));
    return static_cast<int>(lines);
}

// What the texts need, without the margins.
struct Extents {
    std::vector<int> headings;   // by column
    std::vector<int> texts;      // by column
    std::vector<int> mostTexts;  // by column: so many characters
    int headingLine = 0;
    int line = 0;
};

int LongestText(const controls::Grid& grid, int column, const QFont& font) {
    if (const std::string& sample = grid.Sample(column); !sample.empty())
        return TextWidth(Shown(sample), font);
    int width = 0;
    for (int row = 1; row < grid.Rows(); ++row)
        if (!grid.At(row, column).Text().empty())
            width = std::max(width, CellWidth(grid.At(row, column), font));
    return width;
}

// So many characters of a name: names are bold and marked.
int LongestShown(QFont font) {
    font.setBold(true);
    return MostCharacters * QFontMetrics(font).averageCharWidth() + MarkSide(font) + CellMargin;
}

Extents FindExtents(const controls::Grid& grid, const GridFonts& fonts) {
    Extents extents;
    const QFont heading = fonts.Heading();
    for (int column = 0; column < grid.Columns(); ++column) {
        const controls::Grid::Cell& top = grid.At(0, column);
        const QString title = Shown(top.Text()).replace("\r\n", "\n");
        const QFont font = fonts.Of(column);
        extents.headings.push_back(TextWidth(title, CellFont(heading, top.look)) - 2 * CellMargin);
        extents.texts.push_back(LongestText(grid, column, font) - 2 * CellMargin);
        extents.mostTexts.push_back(LongestShown(font));
    }
    extents.headingLine = HeadingLines(grid) * QFontMetrics(heading).lineSpacing();
    extents.line = QFontMetrics(fonts.Of(MainColumn)).lineSpacing();
    return extents;
}

// Extents of the normal font, enlarged in proportion.
Extents Enlarged(Extents extents, const GridFonts& fonts) {
    const auto enlarge = [](int& extent, qreal scale) {
        extent = static_cast<int>(std::ceil(extent * scale));
    };
    for (std::size_t column = 0; column < extents.texts.size(); ++column) {
        enlarge(extents.headings[column], fonts.HeadingScale());
        enlarge(extents.texts[column], fonts.ScaleOf(static_cast<int>(column)));
        enlarge(extents.mostTexts[column], fonts.ScaleOf(static_cast<int>(column)));
    }
    enlarge(extents.headingLine, fonts.HeadingScale());
    enlarge(extents.line, fonts.scale);
    return extents;
}

int DesignWidth(const controls::Grid& grid, int column, const GridFonts& fonts) {
    return fonts.fitted ? 0 : static_cast<int>(Pixels(grid.Width(column)) * fonts.scale);
}

// A column whose texts may be of any length takes no more than a third of the table. In the largest
// font, texts of 24 characters are whole.
int MostWidth(int others, int mostText, const GridFonts& fonts) {
    if (fonts.fitted) return mostText + 2 * CellMargin;
    return fonts.mostColumnWidth > 0 ? fonts.mostColumnWidth : others / (Third - 1);
}

// As wanted by the user, if the widths are not those of the largest font.
int ChosenWidth(int width, int column, const GridFonts& fonts) {
    const auto own = fonts.own.find(column);
    if (fonts.fitted || own == fonts.own.end()) return width;
    return static_cast<int>(own->second * fonts.scale);
}

GridMeasures Arrange(const controls::Grid& grid, const GridFonts& fonts, const Extents& extents) {
    GridMeasures measures;
    for (int column = 0; column < grid.Columns(); ++column) {
        const auto place = static_cast<std::size_t>(column);
        const int text = std::max(extents.headings[place], extents.texts[place]) + 2 * CellMargin;
        measures.columns.push_back(std::max(text, DesignWidth(grid, column, fonts)));
    }
    const int all = measures.Size(fonts.rowHeading).width();
    for (int column = 0; column < grid.Columns(); ++column) {
        const auto place = static_cast<std::size_t>(column);
        int& width = measures.columns[place];
        if (grid.Sample(column).empty())
            width =
                std::min(width, std::max(MostWidth(all - width, extents.mostTexts[place], fonts),
                                         DesignWidth(grid, column, fonts)));
        width = ChosenWidth(width, column, fonts);
    }
    measures.heading = extents.headingLine + RowMargin;
    const int little = QFontMetrics(fonts.normal).height() / 2;
    for (int row = 1; row < grid.Rows(); ++row) {
        measures.silent.push_back(SaysNothing(grid, row));
        measures.rows.push_back(measures.silent.back() ? little : extents.line + RowMargin);
    }
    return measures;
}

}  // namespace

qreal GridFonts::HeadingScale() const {
    return fitted ? std::max(1.0, MinorShare * scale) : scale;
}

qreal GridFonts::ScaleOf(int column) const {
    const bool isMinor = std::find(minor.begin(), minor.end(), column) != minor.end();
    return isMinor ? HeadingScale() : scale;
}

QFont GridFonts::Of(int column) const {
    return Scaled(normal, ScaleOf(column));
}

QFont GridFonts::Heading() const {
    return Scaled(normal, HeadingScale());
}

QSize GridMeasures::Size(int rowHeading) const {
    return {std::accumulate(columns.begin(), columns.end(), rowHeading),
            std::accumulate(rows.begin(), rows.end(), heading)};
}

bool SaysNothing(const controls::Grid& grid, int row) {
    for (int column = 0; column < grid.Columns(); ++column)
        if (!grid.At(row, column).Text().empty()) return false;
    return true;
}

GridMeasures MeasureGrid(const controls::Grid& grid, const GridFonts& fonts) {
    return Arrange(grid, fonts, FindExtents(grid, fonts));
}

// Each size of a font that is used costs time, so the scale is found in proportion to the normal
// size and then checked.
qreal LargestScale(const controls::Grid& grid, GridFonts fonts, const QSize& room) {
    constexpr qreal shrink = 0.985;
    const auto fits = [&](const GridMeasures& measures) {
        const QSize needed = measures.Size(fonts.rowHeading);
        return needed.width() <= room.width() && needed.height() <= room.height();
    };
    fonts.scale = 1;
    const Extents normal = FindExtents(grid, fonts);
    qreal fitting = 1;
    qreal tooLarge = MostScale;
    while (tooLarge - fitting > 0.02) {
        fonts.scale = (fitting + tooLarge) / 2;
        const bool inside = fits(Arrange(grid, fonts, Enlarged(normal, fonts)));
        (inside ? fitting : tooLarge) = fonts.scale;
    }
    fonts.scale = fitting;
    while (fonts.scale > 1 && !fits(MeasureGrid(grid, fonts)))
        fonts.scale = std::max(1.0, fonts.scale * shrink);
    return fonts.scale;
}

int TextWidth(const QString& text, const QFont& font) {
    const QFontMetricsF metrics(font);
    qreal width = 0;
    for (const QString& line : text.split('\n'))
        width = std::max(width, metrics.horizontalAdvance(line));
    return static_cast<int>(std::ceil(width)) + 2 * CellMargin + GridLine;
}

int CellWidth(const controls::Grid::Cell& cell, const QFont& columnFont) {
    const QFont font = CellFont(columnFont, cell.look);
    const int mark = cell.checked ? MarkSide(font) + CellMargin : 0;
    return TextWidth(Shown(cell.Text()), font) + mark;
}

QFont CellFont(QFont font, const controls::Grid::Look& look) {
    font.setBold(look.bold);
    font.setItalic(look.italic);
    return font;
}

int MarkSide(const QFont& font) {
    return QFontMetrics(font).ascent() * 3 / 4;
}

}  // namespace kelvra::desktop
