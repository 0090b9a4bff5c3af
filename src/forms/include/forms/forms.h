// SPDX-License-Identifier: GPL-3.0-or-later
// All windows of the program, created at the start, and the way from a name to a control, as
// scripts address it. The windows hold state only; the rules that change it reach them here.
#pragma once

#include <string_view>
#include <vector>

#include "controls/changes.h"
#include "forms/copy_form.h"
#include "forms/dialogs.h"
#include "forms/displays.h"
#include "forms/main_window.h"
#include "forms/setup_form.h"
#include "forms/status_form.h"
#include "forms/trend.h"

namespace kelvra::forms {

enum class Lookup { Found, Unknown, NotUnique };

struct Found {
    Lookup result = Lookup::Unknown;
    controls::Control* control = nullptr;  // null unless found

    explicit operator bool() const { return result == Lookup::Found; }
};

struct Forms {
    controls::Changes changes;
    MDIMain mdiMain{changes};
    StatusForm statusForm{changes};
    SetupForm setupForm{changes};
    ScopeDisp scopeDisp{changes};
    TimeSlotDisp timeSlotDisp{changes};
    TimeSlotTabForm timeSlotTabForm{changes};
    TrendForm trendForm{changes};
    TimeForm timeForm{changes};
    AboutForm aboutForm{changes};
    SensInfoForm sensInfoForm{changes};
    CopyForm copyForm{changes};

    // In the order of the members above.
    std::vector<controls::Window*> Windows();

    // Null if no window has that name.
    controls::Window* FindFormByName(std::string_view name);

    // NAME if only one control has that name, or WINDOW.NAME. A window or an option is found by its
    // own name: "Option3", "SensAvgMode(1)". Case matters.
    Found Find(std::string_view name);
};

}  // namespace kelvra::forms
