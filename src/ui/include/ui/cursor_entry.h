// SPDX-License-Identifier: GPL-3.0-or-later
// The list and the box of the trace display in which a cursor is chosen and its position is typed,
// and the keys that move it. All of them move the cursor as a drag would.
#pragma once

#include "forms/displays.h"
#include "ui/trace_cursors.h"
#include "ui/typed_number.h"
#include "util/number_text.h"

namespace kelvra::ui {

class CursorEntry {
public:
    CursorEntry(forms::ScopeDisp& form, const util::NumberForm& numbers);

    // The cursors have been placed anew. A box in which the user is typing stays as it is. The
    // trigger's cursor is always at 0 ms; its position in the box is the trigger delay (ms).
    void Refresh(double triggerDelay);

private:
    void Show();
    void FillList();
    void ShowPosition();
    void Typed();
    void Nudge(int steps);
    void Move(double position);
    double Position() const;
    BoxUnit Unit() const;  // of the chosen cursor's position

    forms::ScopeDisp& form_;
    controls::Graph& graph_;
    const util::NumberForm& numbers_;
    double triggerDelay_ = 0;
};

}  // namespace kelvra::ui
