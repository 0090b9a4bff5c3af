// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/held_traces.h"

#include <cmath>
#include <utility>

namespace kelvra::ui {

using controls::Graph;
using controls::Held;

HeldTraces::HeldTraces(forms::ScopeDisp& form) : form_(form) {
    form_.HoldMaximum.click.Connect([this] { Extend(Held::Maximum, form_.HoldMaximum.Checked()); });
    form_.HoldMinimum.click.Connect([this] { Extend(Held::Minimum, form_.HoldMinimum.Checked()); });
    form_.KeepReference.click.Connect([this] {
        if (!form_.Display.Curve().values.empty()) KeepReference(form_.Display.Curve());
    });
    form_.DropReference.click.Connect([this] { KeepReference({}); });
}

void HeldTraces::KeepReference(Graph::Plot curve) {
    form_.DropReference.enabled = !curve.values.empty();
    form_.Display.SetHeld(Held::Reference, std::move(curve));
}

void HeldTraces::TraceDrawn() {
    Extend(Held::Maximum, form_.HoldMaximum.Checked());
    Extend(Held::Minimum, form_.HoldMinimum.Checked());
}

void HeldTraces::SensorChanged() {
    for (const Held which : {Held::Maximum, Held::Minimum}) form_.Display.SetHeld(which, {});
}

// A gap takes any value.
void HeldTraces::Extend(Held which, bool wanted) {
    Graph::Plot held = form_.Display.HeldCurve(which);
    const Graph::Plot& curve = form_.Display.Curve();
    const bool fits = held.values.size() == curve.values.size() && held.first == curve.first &&
                      held.step == curve.step;
    if (!wanted) {
        held = {};
    } else if (!fits) {
        held = curve;
    } else {
        for (std::size_t i = 0; i < held.values.size(); ++i)
            held.values[i] = which == Held::Maximum ? std::fmax(held.values[i], curve.values[i])
                                                    : std::fmin(held.values[i], curve.values[i]);
    }
    form_.Display.SetHeld(which, std::move(held));
}

}  // namespace kelvra::ui
