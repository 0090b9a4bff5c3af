// SPDX-License-Identifier: GPL-3.0-or-later
// The adapter of a grid. Only cells that have changed are touched.
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "controls/grid.h"
#include "desktop/grid_widget.h"
#include "desktop/schemes.h"
#include "desktop/widget_adapter.h"

namespace kelvra::desktop {

class GridAdapter final : public WidgetAdapter {
public:
    GridAdapter(controls::Grid& grid, GridWidget& widget);
    void Update() override;

private:
    // What every cell depends on.
    struct Form {
        int rows = 0;
        std::array<std::optional<controls::Colour>, 3> colours{};  // cells, heading, empty part
        std::vector<int> widths;                                   // twips
        std::vector<std::string> samples;
        Scheme scheme = Scheme::Classic;
        bool operator==(const Form&) const = default;
    };
    Form FormOfGrid() const;

    void Shape();
    void ShowAll();
    void FitColumns();
    void FillRoom();
    void ShowCell(int row, int column);
    void ShowColours(QTableWidgetItem& item, const controls::Grid::Cell& cell);
    void ShowMark(QTableWidgetItem& item, const controls::Grid::Cell& cell);
    void ShowHeading(int column);
    bool NeedsMore(int row, int column) const;

    controls::Grid& grid_;
    GridWidget& widget_;
    Form form_;
    GridMeasures measures_;
    std::vector<QFont> fonts_;  // of the columns
};

}  // namespace kelvra::desktop
