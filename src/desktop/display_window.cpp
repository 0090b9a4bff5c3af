// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/display_window.h"

#include <utility>

#include "desktop/colour_roles.h"
#include "desktop/display_views.h"
#include "desktop/icons.h"
#include "desktop/qt_text.h"
#include "desktop/trend_view.h"

namespace kelvra::desktop {

namespace {
constexpr Qt::WindowFlags Closable = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                     Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
}  // namespace

void DisplayWindowAdapter::Update() {
    if (window_ == nullptr && !record_.visible) return;
    if (window_ == nullptr) window_ = &make_();
    window_->setWindowTitle(Shown(record_.caption.Get()));
    UpdateColours(*window_->widget(), record_);
    if (std::exchange(shown_, record_.place.Get()) != record_.place.Get()) window_->FollowPlace();
    window_->setVisible(record_.visible);
    if (std::exchange(presented_, record_.presented.Get()) != record_.presented.Get())
        window_->raise();
    if (onUpdate) onUpdate();
}

DisplayWindows::DisplayWindows(Parts parts) : p_(std::move(parts)) {
    forms::Forms& forms = p_.forms;
    Add(forms.scopeDisp, [this](WidgetMaker& maker) {
        return MakeTraceView(p_.forms.scopeDisp, maker, p_.dialogs);
    });
    Add(forms.timeSlotDisp, [this](WidgetMaker& maker) {
        return MakeSlotView(p_.forms.timeSlotDisp, maker, p_.dialogs);
    });
    Add(forms.timeSlotTabForm,
        [this](WidgetMaker& maker) { return MakeSlotTableView(p_.forms.timeSlotTabForm, maker); });
    Add(forms.trendForm, [this](WidgetMaker& maker) {
        return MakeTrendView(p_.forms.trendForm, maker, p_.dialogs);
    });
}

void DisplayWindows::Add(controls::Window& record, const MakeContent& makeContent) {
    auto adapter = std::make_unique<DisplayWindowAdapter>(
        record,
        [this, &record, makeContent]() -> ChildWindow& { return Make(record, makeContent); });
    adapter->onUpdate = [this] {
        p_.onShown(p_.forms.scopeDisp.visible || p_.forms.timeSlotDisp.visible ||
                       p_.forms.trendForm.visible,
                   p_.forms.timeSlotTabForm.visible);
    };
    p_.mirror.Add(record, std::move(adapter));
}

ChildWindow& DisplayWindows::Make(controls::Window& record, const MakeContent& makeContent) {
    auto* window = new ChildWindow(record, p_.area);
    WidgetMaker maker(p_.mirror);
    window->setWidget(makeContent(maker));
    window->setWindowFlags(Closable);
    window->setWindowIcon(Icon("kelvra"));
    window->onRoom = [window] { window->FollowPlace(); };
    if (const QRect place = p_.preferences.Place(Shown(record.Name())); place.isValid())
        window->PlaceAsBefore(place);
    windows_.push_back(window);
    return *window;
}

void DisplayWindows::KeepPlaces() {
    for (const ChildWindow* window : windows_)
        if (window->PlacedByPerson())
            p_.preferences.SetPlace(Shown(window->Record().Name()), window->geometry());
}

}  // namespace kelvra::desktop
