// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/setup_pages.h"

#include <array>

#include "sensors/settings_fields.h"

namespace kelvra::ui {

using controls::Geometry;
using forms::SetupForm;

namespace {

// Twips.
constexpr int WidthMargin = 100;
constexpr int HeightMargin = 250;

std::array<controls::Frame*, 5> Pages(SetupForm& form) {
    return {&form.GeneralFrame, &form.ModeFrame, &form.TriggerFrame, &form.CorrectionFrame,
            &form.AdvancedFrame};
}

void MoveBelowHeader(SetupForm& form, controls::Frame& page) {
    Geometry place = page.place;
    place.top = form.Frame1.place->top + form.Frame1.place->height;
    page.place = place;
}

}  // namespace

void SelectPage(SetupForm& form, int page) {
    const auto pages = Pages(form);
    for (std::size_t i = 0; i < pages.size(); ++i) pages[i]->visible = static_cast<int>(i) == page;
    PlaceVisiblePage(form);
}

void PlaceVisiblePage(SetupForm& form) {
    for (controls::Frame* page : Pages(form))
        if (page->visible) MoveBelowHeader(form, *page);
}

void ShowModeFrames(SetupForm& form, std::int32_t mode) {
    const std::array<controls::Frame*, 5> frames{&form.ContAVFrame, &form.BufferAVFrame,
                                                 &form.TimeSlotFrame, &form.BurstAVFrame,
                                                 &form.ScopeFrame};
    for (std::size_t i = 0; i < frames.size(); ++i)
        frames[i]->visible = static_cast<std::int32_t>(i) == mode;
    const bool trace = mode == sensors::Trace;
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &form.chkAutoScaleScope, &form.txtMinScope, &form.txtMaxScope})
        control->visible = trace;
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &form.chkAutoScaleTime, &form.txtMinTime, &form.txtMaxTime})
        control->visible = !trace;
    form.AverageFrame.visible = !trace;
}

void LimitSize(SetupForm& form) {
    Geometry place = form.place;
    const int width = form.Frame1.place->width + WidthMargin;
    const int height = form.Frame1.place->height + form.ModeFrame.place->height;
    if (place.width > width) place.width = width;
    if (place.height > height + HeightMargin) place.height = height;
    form.place = place;
}

}  // namespace kelvra::ui
