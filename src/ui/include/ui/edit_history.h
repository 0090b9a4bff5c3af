// SPDX-License-Identifier: GPL-3.0-or-later
// What can be undone and redone in this run: the edits of the sensors' settings and of formulas, in
// their order. Each sensor has its own steps, also after an unplug. Whoever edits makes the
// changes; the history only knows them.
#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "controls/control.h"
#include "sensors/sensor_settings.h"

namespace kelvra::ui {

struct SettingsChange {
    sensors::SensorSettings from;
    sensors::SensorSettings to;
};

// Of a cell of the calculation grid.
struct FormulaChange {
    int row = 0;
    int column = 0;
    std::string from;
    std::string to;
};

struct EditStep {
    std::string sensor;  // its key; empty: a step of the formulas
    std::string what;    // as the user knows it: "Window"
    std::variant<SettingsChange, FormulaChange> change;
};

enum class Direction { Undo, Redo };

class EditHistory {
public:
    static constexpr std::size_t MostSteps = 300;  // in each direction

    // An edit has been made. If it changes nothing it is no step. Edits while the user types into
    // one control, or drags in it, are one step until EndStep. Drops what could be redone of the
    // same sensor, or of the formulas.
    void Add(EditStep step, const controls::Control* gatheredIn = nullptr);
    // The next edit is a step of its own.
    void EndStep() { gatheredIn_ = nullptr; }

    // The next step if that sensor is the current one: its own latest, or the formulas' if that is
    // later. Null if there is none.
    const EditStep* Next(Direction direction, std::string_view sensor) const;
    // Takes that step; the caller makes its change, from .from to .to.
    std::optional<EditStep> Take(Direction direction, std::string_view sensor);

    // What is next may have changed.
    std::function<void()> onChange;

private:
    using Steps = std::deque<EditStep>;  // the latest one at the end

    static void Push(Steps& steps, EditStep step);
    const Steps& Of(Direction direction) const {
        return steps_[static_cast<std::size_t>(direction)];
    }
    Steps& Of(Direction direction) { return steps_[static_cast<std::size_t>(direction)]; }

    std::array<Steps, 2> steps_;
    const controls::Control* gatheredIn_ = nullptr;  // the latest edit; null: it is complete
};

}  // namespace kelvra::ui
