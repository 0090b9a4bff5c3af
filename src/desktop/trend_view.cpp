// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/trend_view.h"

#include <QHeaderView>
#include <algorithm>

#include "desktop/common.h"
#include "desktop/display_parts.h"
#include "desktop/flow_layout.h"
#include "desktop/form_rows.h"

namespace kelvra::desktop {

namespace {

constexpr int ZoomIcon = 18;  // logical pixels
constexpr int LimitCharacters = 8;
constexpr int MostRows = 4;  // of the table in sight; the graph needs the room

QWidget* MakeLimit(controls::TextField& field, WidgetMaker& maker) {
    QLineEdit* box = maker.Make(field);
    box->setFixedWidth(LimitCharacters * box->fontMetrics().averageCharWidth());
    QWidget* limit = Captioned(maker.Make(*field.captionLabel), box);
    if (field.unitLabel) limit->layout()->addWidget(maker.Make(*field.unitLabel));
    return limit;
}

// As high as its rows, up to a few; it scrolls for the others.
QWidget* MakeValues(controls::Grid& values, WidgetMaker& maker) {
    GridWidget* table = maker.Make(values);
    const auto fit = [table] {
        int height = table->horizontalHeader()->height();
        for (int row = 0; row < std::min(table->rowCount(), MostRows); ++row)
            height += table->rowHeight(row);
        table->setFixedHeight(height);
    };
    fit();
    table->onNeed = fit;
    return table;
}

}  // namespace

QWidget* MakeTrendView(forms::TrendForm& form, WidgetMaker& maker, QtDialogs& dialogs) {
    QVBoxLayout* column = nullptr;
    QWidget* all = MakeRoom(column);
    auto* choices = new FlowLayout(2 * Margin, Margin / 2);
    for (controls::ListField* list : {&form.TrendSensor, &form.TrendSpan, &form.TrendUnit})
        choices->addWidget(Captioned(maker.Make(*list->captionLabel), maker.Make(*list)));
    choices->addWidget(maker.Make(form.TrendPause));
    QPushButton* zoom = maker.Make(form.TrendZoom);
    zoom->setIconSize({ZoomIcon, ZoomIcon});
    choices->addWidget(zoom);
    choices->addWidget(
        Together({MakeLimit(form.LowLimit, maker), MakeLimit(form.HighLimit, maker)}));
    choices->addWidget(Together({maker.Make(form.ResetCounts), maker.Make(form.ClearTrend)}));
    column->addLayout(choices);
    column->addLayout(MakeGraph(form.TrendGraph, form.lblPointed, form.TrendMenu, maker, dialogs),
                      1);
    column->addWidget(MakeValues(form.TrendValues, maker));
    return all;
}

}  // namespace kelvra::desktop
