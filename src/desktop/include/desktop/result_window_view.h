// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the result table's window: only the table, as large as its rows, or as the area.
#pragma once

#include <QMdiArea>

#include "desktop/grid_widget.h"
#include "desktop/mirror.h"
#include "desktop/window_adapters.h"
#include "forms/status_form.h"

namespace kelvra::desktop {

class ResultWindowView {
public:
    ResultWindowView(forms::StatusForm& form, Mirror& mirror, QMdiArea& area);

    GridWidget& Table() { return *table_; }
    ChildWindow& Window() { return *window_; }

    // Fills the area with the readings, in the largest font with which all are in sight.
    void SetFitted(bool fitted);
    // Then, as much of the area as other windows beside and below leave.
    void LeaveRoom(bool beside, bool below);

private:
    void FitWindow();
    void Fill();

    forms::StatusForm& form_;
    ChildWindow* window_;  // owned by the area
    GridWidget* table_ = nullptr;
    bool fitting_ = false;
    bool beside_ = false;
    bool below_ = false;
};

}  // namespace kelvra::desktop
