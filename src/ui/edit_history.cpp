// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/edit_history.h"

#include <algorithm>
#include <utility>

namespace kelvra::ui {

namespace {

// Every store of a field turns the frequency correction on; that alone is no edit.
bool ChangesNothing(const SettingsChange& change) {
    sensors::SensorSettings from = change.from;
    if (change.to.CorrFreq) from.CorrFreq = true;
    return from == change.to;
}

bool ChangesNothing(const FormulaChange& change) {
    return change.from == change.to;
}

bool ChangesNothing(const EditStep& step) {
    return std::visit([](const auto& change) { return ChangesNothing(change); }, step.change);
}

EditStep Reversed(EditStep step) {
    std::visit([](auto& change) { std::swap(change.from, change.to); }, step.change);
    return step;
}

// Both are changes of the same kind.
EditStep Joined(EditStep first, const EditStep& second) {
    std::visit(
        [&](auto& change) {
            change.to = std::get<std::decay_t<decltype(change)>>(second.change).to;
        },
        first.change);
    return first;
}

// The latest step of the sensor or the formulas.
template <class Steps>
auto Latest(Steps& steps, std::string_view sensor) {
    return std::find_if(steps.rbegin(), steps.rend(), [&](const EditStep& step) {
        return step.sensor.empty() || step.sensor == sensor;
    });
}

}  // namespace

void EditHistory::Push(Steps& steps, EditStep step) {
    if (steps.size() == MostSteps) steps.pop_front();
    steps.push_back(std::move(step));
}

void EditHistory::Add(EditStep step, const controls::Control* gatheredIn) {
    Steps& done = Of(Direction::Undo);
    if (gatheredIn_ != nullptr && gatheredIn_ == gatheredIn && done.back().sensor == step.sensor &&
        done.back().what == step.what) {
        step = Joined(std::move(done.back()), step);
        done.pop_back();
    }
    gatheredIn_ = nullptr;
    if (!ChangesNothing(step)) {
        gatheredIn_ = gatheredIn;
        std::erase_if(Of(Direction::Redo),
                      [&](const EditStep& undone) { return undone.sensor == step.sensor; });
        Push(done, std::move(step));
    }
    if (onChange) onChange();
}

const EditStep* EditHistory::Next(Direction direction, std::string_view sensor) const {
    const Steps& steps = Of(direction);
    const auto next = Latest(steps, sensor);
    return next == steps.rend() ? nullptr : &*next;
}

std::optional<EditStep> EditHistory::Take(Direction direction, std::string_view sensor) {
    EndStep();
    Steps& steps = Of(direction);
    const auto next = Latest(steps, sensor);
    if (next == steps.rend()) return std::nullopt;
    const EditStep step = Reversed(std::move(*next));
    steps.erase(std::next(next).base());
    const Direction back = direction == Direction::Undo ? Direction::Redo : Direction::Undo;
    Push(Of(back), step);
    if (onChange) onChange();
    return step;
}

}  // namespace kelvra::ui
