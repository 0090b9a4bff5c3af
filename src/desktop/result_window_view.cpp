// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/result_window_view.h"

#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/common.h"
#include "desktop/icons.h"
#include "desktop/widget_maker.h"

namespace kelvra::desktop {

ResultWindowView::ResultWindowView(forms::StatusForm& form, Mirror& mirror, QMdiArea& area)
    : form_(form), window_(new ChildWindow(form, area)) {
    WidgetMaker maker(mirror);
    QFrame* frame = maker.Make(form.SensorFrame);
    table_ = maker.Make(form.ResultGrid);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(table_);
    window_->setWidget(frame);
    // Without buttons: a minimised window could not be brought back, and a maximised one would
    // change the program's title.
    window_->setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    window_->setWindowIcon(Icon("kelvra"));

    table_->onNeed = [this] { FitWindow(); };
    window_->onRoom = [this] { FitWindow(); };
    mirror.Add(form, std::make_unique<ChildWindowAdapter>(form, *window_));
    FitWindow();
}

// Shows all columns and rows, as far as the area has room, unless the user has chosen another size.
// Deferred and done once: a table that is being filled asks often, and knows its sizes only after
// its layout.
void ResultWindowView::FitWindow() {
    if (fitting_) return;
    fitting_ = true;
    QTimer::singleShot(0, window_, [this] {
        fitting_ = false;
        const controls::Geometry& place = form_.place.Get();
        const QSize wanted(Pixels(place.width), Pixels(place.height));
        if (window_->SizedByPerson()) return window_->ResizeInside(wanted);
        QSize needed = window_->size() - table_->size() + table_->sizeHint();
        if (needed.height() > window_->Room().height())
            needed.rwidth() += table_->verticalScrollBar()->sizeHint().width();
        window_->ResizeInside(needed.expandedTo(wanted));
    });
}

}  // namespace kelvra::desktop
