// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the result table's window: only the table, as large as its rows.
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

private:
    void FitWindow();

    forms::StatusForm& form_;
    ChildWindow* window_;  // owned by the area
    GridWidget* table_ = nullptr;
    bool fitting_ = false;
};

}  // namespace kelvra::desktop
