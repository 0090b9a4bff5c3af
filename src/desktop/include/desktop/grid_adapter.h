// SPDX-License-Identifier: GPL-3.0-or-later
// The adapter of a grid. Only cells that have changed are touched.
#pragma once

#include <QFont>
#include <QString>
#include <array>
#include <optional>
#include <vector>

#include "controls/grid.h"
#include "desktop/adapter.h"
#include "desktop/grid_widget.h"

namespace kelvra::desktop {

class GridAdapter final : public Adapter {
public:
    GridAdapter(controls::Grid& grid, GridWidget& widget);
    void Update() override;

private:
    void Shape();
    void FitColumns();
    void Need();
    void ShowCell(int row, int column);
    void ShowHeading(int column);
    void Widen(int column, const QString& text, const QFont& font);

    controls::Grid& grid_;
    GridWidget& widget_;
    // What is shown: colours of cells, heading, empty part; widths of the columns in twips.
    std::array<std::optional<controls::Colour>, 3> colours_{};
    std::vector<int> widths_;
};

}  // namespace kelvra::desktop
