// SPDX-License-Identifier: GPL-3.0-or-later
// The line in which the user types a cell's text. Each change goes to the record, whose remark says
// what is wrong with it and where: that place is underlined.
#pragma once

#include <QLineEdit>

#include "controls/grid.h"

namespace kelvra::desktop {

class CellEditor final : public QLineEdit {
public:
    // Row and column of the record.
    CellEditor(controls::Grid& grid, int row, int column, QWidget* parent);

private:
    void Report();
    void MarkFault(int place);

    controls::Grid& grid_;
    int row_;
    int column_;
};

}  // namespace kelvra::desktop
