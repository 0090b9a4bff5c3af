// SPDX-License-Identifier: GPL-3.0-or-later
// How much room a grid needs: widths of its columns, heights of its rows, in logical pixels, for a
// font. And the largest font with which it fits into a given room.
#pragma once

#include <QFont>
#include <QSize>
#include <QString>
#include <map>
#include <vector>

#include "controls/grid.h"

namespace kelvra::desktop {

// How a grid is to be shown.
struct GridFonts {
    QFont normal;  // at scale 1
    qreal scale = 1;
    bool fitted = false;      // minor columns and headings are smaller then, and widths don't grow
    std::vector<int> minor;   // columns that may be read from nearby only
    std::map<int, int> own;   // widths that the user has chosen, at scale 1
    int rowHeading = 0;       // width in front of the columns
    int mostColumnWidth = 0;  // 0: a third of the table

    qreal ScaleOf(int column) const;
    qreal HeadingScale() const;
    QFont Of(int column) const;
    QFont Heading() const;
};

struct GridMeasures {
    std::vector<int> columns;
    std::vector<int> rows;     // below the heading
    std::vector<bool> silent;  // rows without a text
    int heading = 0;

    QSize Size(int rowHeading) const;
};

bool SaysNothing(const controls::Grid& grid, int row);

// Rows without a text take little room.
GridMeasures MeasureGrid(const controls::Grid& grid, const GridFonts& fonts);

// The largest scale, but at least 1, at which the whole grid fits into the room; what is left of
// the width goes to the first column.
qreal LargestScale(const controls::Grid& grid, GridFonts fonts, const QSize& room);

// Width of a text of several lines, with the margins and the line of a cell.
int TextWidth(const QString& text, const QFont& font);
// The same for a cell with its own weight and mark.
int CellWidth(const controls::Grid::Cell& cell, const QFont& columnFont);
QFont CellFont(QFont font, const controls::Grid::Look& look);
// The mark of a cell is a square of this side, with a gap on each side.
int MarkSide(const QFont& font);

constexpr int CellMargin = 8;       // logical pixels, on each side of a text
constexpr int MostCharacters = 24;  // of a text that is shown whole

}  // namespace kelvra::desktop
