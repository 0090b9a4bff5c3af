// SPDX-License-Identifier: GPL-3.0-or-later
// What the user changes about the look, kept from run to run: the size of the readings, which can
// be read from the other end of the room, full screen, and the colours. Entries of the Window menu
// and their keys. Sizes are those of the table that has the focus, else of the results.
#pragma once

#include <QActionGroup>
#include <QMenu>
#include <functional>
#include <vector>

#include "desktop/grid_widget.h"
#include "desktop/preferences.h"
#include "desktop/result_window_view.h"

namespace kelvra::desktop {

struct ViewParts {
    FrameWindow& frame;
    QMenu& menu;
    ResultWindowView& results;
    GridWidget& formulas;
    std::function<void()> onColours;  // the scheme has changed
};

class ViewMenu {
public:
    // Gives the tables what they had in the last run.
    ViewMenu(Preferences& preferences, const ViewParts& parts);

private:
    void AddSizes();
    void AddScreen();
    void AddColours();
    void Keep(GridWidget& table);
    void SetFitted(bool fitted);
    void SetZoom(GridWidget& table, int steps);
    GridWidget& Meant() const;

    Preferences& preferences_;
    ViewParts parts_;
    std::vector<GridWidget*> tables_;
    QAction* fit_ = nullptr;
};

}  // namespace kelvra::desktop
