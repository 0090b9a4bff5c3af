// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_measures.h"

#include <QFontMetrics>
#include <algorithm>
#include <numeric>

#include "desktop/common.h"
#include "desktop/qt_text.h"

namespace kelvra::desktop {

namespace {

constexpr int RowMargin = 8;        // above and below a text together
constexpr qreal MinorShare = 0.45;  // of the readings' size
constexpr qreal MostScale = 40;
constexpr int Third = 3;

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

int HeadingWidth(const controls::Grid& grid, int column, const GridFonts& fonts) {
    const controls::Grid::Cell& cell = grid.At(0, column);
    const QFont font = CellFont(fonts.Heading(), cell.look);
    return TextWidth(Shown(cell.Text()).replace("\r\n", "\n"), font);
}

int DesignWidth(const controls::Grid& grid, int column, const GridFonts& fonts) {
    return fonts.fitted ? 0 : static_cast<int>(Pixels(grid.Width(column)) * fonts.scale);
}

// What the column needs for its heading, its design and its texts.
int ColumnWidth(const controls::Grid& grid, int column, const GridFonts& fonts) {
    const QFont font = fonts.Of(column);
    int width = std::max(HeadingWidth(grid, column, fonts), DesignWidth(grid, column, fonts));
    if (const std::string& sample = grid.Sample(column); !sample.empty())
        return std::max(width, TextWidth(Shown(sample), font));
    for (int row = 1; row < grid.Rows(); ++row)
        width = std::max(width, CellWidth(grid.At(row, column), font));
    return width;
}

int MostWidth(int others, int column, const GridFonts& fonts) {
    if (fonts.fitted)
        return MostCharacters * QFontMetrics(fonts.Of(column)).averageCharWidth() + 2 * CellMargin;
    return fonts.mostColumnWidth > 0 ? fonts.mostColumnWidth : others / (Third - 1);
}

// A column whose texts may be of any length takes no more than a third of the table. In the largest
// font, texts of 24 characters are whole.
int Limited(int width, int others, const controls::Grid& grid, int column, const GridFonts& fonts) {
    if (!grid.Sample(column).empty()) return width;
    const int most = MostWidth(others, column, fonts);
    return std::min(width, std::max(most, DesignWidth(grid, column, fonts)));
}

// As wanted by the user, if the widths are not those of the largest font.
int ChosenWidth(int width, int column, const GridFonts& fonts) {
    const auto own = fonts.own.find(column);
    if (fonts.fitted || own == fonts.own.end()) return width;
    return static_cast<int>(own->second * fonts.scale);
}

}  // namespace

QFont GridFonts::Of(int column) const {
    const bool isMinor = std::find(minor.begin(), minor.end(), column) != minor.end();
    return Scaled(normal, fitted && isMinor ? std::max(1.0, MinorShare * scale) : scale);
}

QFont GridFonts::Heading() const {
    return Scaled(normal, fitted ? std::max(1.0, MinorShare * scale) : scale);
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
    GridMeasures measures;
    for (int column = 0; column < grid.Columns(); ++column)
        measures.columns.push_back(ColumnWidth(grid, column, fonts));
    const int all = measures.Size(fonts.rowHeading).width();
    for (int column = 0; column < grid.Columns(); ++column) {
        int& width = measures.columns[static_cast<std::size_t>(column)];
        width = ChosenWidth(Limited(width, all - width, grid, column, fonts), column, fonts);
    }
    measures.heading =
        HeadingLines(grid) * QFontMetrics(fonts.Heading()).lineSpacing() + RowMargin;
    const int full = QFontMetrics(Scaled(fonts.normal, fonts.scale)).height() + RowMargin;
    const int little = QFontMetrics(fonts.normal).height() / 2;
    for (int row = 1; row < grid.Rows(); ++row) {
        measures.silent.push_back(SaysNothing(grid, row));
        measures.rows.push_back(measures.silent.back() ? little : full);
    }
    return measures;
}

qreal LargestScale(const controls::Grid& grid, GridFonts fonts, const QSize& room) {
    qreal fits = 1;
    qreal tooLarge = MostScale;
    while (tooLarge - fits > 0.02) {
        fonts.scale = (fits + tooLarge) / 2;
        const QSize needed = MeasureGrid(grid, fonts).Size(fonts.rowHeading);
        const bool inside = needed.width() <= room.width() && needed.height() <= room.height();
        (inside ? fits : tooLarge) = fonts.scale;
    }
    return fits;
}

int TextWidth(const QString& text, const QFont& font) {
    const QFontMetrics metrics(font);
    int width = 0;
    for (const QString& line : text.split('\n'))
        width = std::max(width, metrics.horizontalAdvance(line));
    return width + 2 * CellMargin;
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
