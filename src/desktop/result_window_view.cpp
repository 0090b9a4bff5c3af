// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/result_window_view.h"

#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include "desktop/common.h"
#include "desktop/icons.h"
#include "desktop/widget_maker.h"
#include "ui/result_columns.h"

namespace kelvra::desktop {

namespace {
constexpr Qt::WindowFlags Titled = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
constexpr Qt::WindowFlags Filling = Qt::SubWindow | Qt::FramelessWindowHint;
}  // namespace

ResultWindowView::ResultWindowView(forms::StatusForm& form, Mirror& mirror, QMdiArea& area)
    : form_(form), window_(new ChildWindow(form, area)) {
    WidgetMaker maker(mirror);
    QFrame* frame = maker.Make(form.SensorFrame);
    table_ = maker.Make(form.ResultGrid);
    table_->ShowRowNumbers();
    table_->SetMinorColumns({ui::StatusColumn, ui::SigmaColumn, ui::CountColumn});
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->addWidget(table_);
    window_->setWidget(frame);
    // Without buttons: a minimised window could not be brought back, and a maximised one would
    // change the program's title.
    window_->setWindowFlags(Titled);
    window_->setWindowIcon(Icon("kelvra"));

    table_->onNeed = [this] { FitWindow(); };
    window_->onRoom = [this] {
        if (table_->Fitted())
            Fill();
        else
            FitWindow();
    };
    mirror.Add(form, std::make_unique<ChildWindowAdapter>(form, *window_));
    FitWindow();
}

void ResultWindowView::SetFitted(bool fitted) {
    if (table_->Fitted() == fitted) return;
    window_->setWindowFlags(fitted ? Filling : Titled);
    window_->setVisible(form_.visible);
    if (!fitted) window_->move(Pixels(form_.place->left), Pixels(form_.place->top));
    FitWindow();
    table_->SetFitted(fitted);
}

void ResultWindowView::LeaveRoom(bool beside, bool below) {
    if (beside == beside_ && below == below_) return;
    beside_ = beside;
    below_ = below;
    FitWindow();
}

// The other windows' places begin where the record's ends.
void ResultWindowView::Fill() {
    const controls::Geometry& place = form_.place.Get();
    constexpr int whole = QWIDGETSIZE_MAX;
    window_->FillArea({beside_ || below_ ? Pixels(place.left + place.width) : whole,
                       below_ ? Pixels(place.top + place.height) : whole});
}

// Fitted, the window takes the whole area. Else it shows all columns and rows, as far as the area
// has room, unless the user has chosen another size. Deferred and done once: a table that is being
// filled asks often, and knows its sizes only after its layout.
void ResultWindowView::FitWindow() {
    if (fitting_) return;
    fitting_ = true;
    QTimer::singleShot(0, window_, [this] {
        fitting_ = false;
        if (table_->Fitted()) return Fill();
        const controls::Geometry& place = form_.place.Get();
        const QSize wanted(Pixels(place.width), Pixels(place.height));
        if (window_->SizedByPerson()) return window_->ResizeInside(wanted);
        QSize needed = window_->size() - table_->size() + table_->sizeHint();
        if (needed.height() > window_->Room().height())
            needed.rwidth() += table_->verticalScrollBar()->sizeHint().width();
        window_->ResizeInside(needed);
    });
}

}  // namespace kelvra::desktop
