// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/cursor_entry.h"

#include <cmath>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace kelvra::ui {

using controls::List;

namespace {

constexpr double LeastStep = 1e-3;  // ms
constexpr double Decimals = 1e6;    // of a shown position
constexpr const char* Names[] = {"Trigger level", "Exclusion start", "Exclusion stop",
                                 "Trigger delay"};

std::string NameOf(int cursor) {
    if (cursor < static_cast<int>(std::size(Names))) return Names[cursor];
    return "End of slot " + util::TrimmedNumberText(cursor - TrigDelayCursor);
}

}  // namespace

CursorEntry::CursorEntry(forms::ScopeDisp& form, const util::NumberForm& numbers)
    : form_(form), graph_(form.Display), numbers_(numbers) {
    form_.CursorSelect.click.Connect([this] { graph_.ChooseCursor(form_.CursorSelect.Data()); });
    graph_.choice.Connect([this] { Show(); });
    graph_.nudge.Connect([this](int steps) { Nudge(steps); });
    form_.CursorPosition.change.Connect([this] { Typed(); });
    form_.CursorPosition.commit.Connect([this] {
        if (graph_.chosen < 0 || !form_.CursorPosition.fault->empty()) return;
        Move(ReadTyped(form_.CursorPosition.Text(), Unit(), numbers_).value);
        graph_.ReleaseCursor(graph_.chosen);
    });
}

BoxUnit CursorEntry::Unit() const {
    if (graph_.CursorAt(graph_.chosen).horizontal) return {.name = "dBm"};
    constexpr double secondsPerMs = 1e-3;
    return {"ms", Quantity::Time, secondsPerMs};
}

void CursorEntry::Refresh(double triggerDelay) {
    triggerDelay_ = triggerDelay;
    Show();
}

void CursorEntry::Show() {
    FillList();
    const bool any = graph_.chosen >= 0;
    form_.CursorSelect.enabled = form_.CursorSelect.Count() > 0;
    form_.CursorPosition.enabled = any;
    if (any) return ShowPosition();
    form_.CursorPosition.SetText("");
    form_.CursorPosition.fault = std::string();
}

// A cursor that is hidden is not chosen any more.
void CursorEntry::FillList() {
    std::vector<List::Item> items;
    for (int cursor = 0; cursor < graph_.CursorCount(); ++cursor)
        if (graph_.CursorAt(cursor).visible) items.push_back({NameOf(cursor), cursor});
    List& list = form_.CursorSelect;
    if (list.Items() != items) list.Fill(std::move(items));
    const int index = list.IndexOfData(graph_.chosen);
    if (index < 0) graph_.chosen = -1;
    if (list.Index() != index) list.Preselect(index);
}

double CursorEntry::Position() const {
    const controls::Graph::Cursor& cursor = graph_.CursorAt(graph_.chosen);
    if (graph_.chosen == TrigDelayCursor) return triggerDelay_;
    return cursor.horizontal ? cursor.y : cursor.x;
}

void CursorEntry::ShowPosition() {
    const std::string unit(Unit().name);
    form_.CursorPosition.unitLabel->caption = unit;
    if (form_.CursorPosition.Edited()) return;
    const double shown = std::nearbyint(Position() * Decimals) / Decimals;
    form_.CursorPosition.SetText(util::GeneralText(shown, {}));
    form_.CursorPosition.fault = std::string();
}

void CursorEntry::Typed() {
    if (graph_.chosen < 0) return;
    const TypedNumber typed = ReadTyped(form_.CursorPosition.Text(), Unit(), numbers_);
    const bool usable = std::isfinite(typed.value) && typed.fault.empty();
    form_.CursorPosition.fault = std::string(usable ? "" : "This is no position for a cursor.");
}

// To the right or up by points of the trace, or by tenths of a dB. Moves of one cursor are one
// edit, until something else is edited.
void CursorEntry::Nudge(int steps) {
    const bool level = graph_.CursorAt(graph_.chosen).horizontal;
    const double step = level ? LevelStep : std::fmax(graph_.Curve().step, LeastStep);
    Move(Position() + steps * step);
}

void CursorEntry::Move(double position) {
    controls::Graph::Cursor to = graph_.CursorAt(graph_.chosen);
    (to.horizontal ? to.y : to.x) += position - Position();
    graph_.MoveCursor(graph_.chosen, to.x, to.y);
}

}  // namespace kelvra::ui
