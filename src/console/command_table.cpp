// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/command_table.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "console/dump.h"
#include "console/evaluate.h"
#include "console/json_line.h"
#include "console/print.h"
#include "controls/visit.h"
#include "util/number_reading.h"
#include "util/text.h"

namespace kelvra::console {

namespace {

using controls::Control;
using controls::Kind;

// Takes the next word off the rest of the line.
std::string_view TakeWord(std::string_view& rest) {
    const auto start = std::min(rest.find_first_not_of(' '), rest.size());
    const auto split = util::SplitAtFirst(rest.substr(start), ' ');
    rest = split.after;
    return split.before;
}

// A whole number from `least` to `most` that is all of the text.
std::optional<int> WholeNumber(std::string_view text, int least, int most) {
    const auto number = util::ReadWholeNumber(text);
    if (!number || *number < least || *number > most) return std::nullopt;
    return static_cast<int>(*number);
}

std::optional<double> RealNumber(std::string_view text) {
    const util::NumberRead read = util::ReadNumberAt(text);
    if (read.length == 0 || read.length != text.size() || !std::isfinite(read.value))
        return std::nullopt;
    return read.value;
}

// A control that a command names.
struct Target {
    Control* control = nullptr;
    CommandError error;
};

Target FindTarget(CommandContext& c, std::string_view& rest) {
    const std::string name(TakeWord(rest));
    if (name.empty()) return {nullptr, "the name of a control is missing"};
    const forms::Found found = c.kelvra.forms.Find(name);
    if (found.result == forms::Lookup::NotUnique)
        return {nullptr, "several windows have a " + name};
    if (!found) return {nullptr, "there is no control " + name};
    return {found.control, std::nullopt};
}

// The same for a command that acts like the user: the control must be visible and enabled, and an
// edit in the text box used before is committed.
Target ReachTarget(CommandContext& c, std::string_view& rest) {
    Target target = FindTarget(c, rest);
    if (target.error) return target;
    if (c.typedInto != nullptr && c.typedInto != target.control)
        std::exchange(c.typedInto, nullptr)->Leave();
    if (target.control->GetKind() == Kind::Window) return target;
    if (!target.control->EffectivelyVisible())
        target.error = target.control->Name() + " is hidden";
    else if (!target.control->EffectivelyEnabled())
        target.error = target.control->Name() + " is disabled";
    return target;
}

std::string NotFor(const Control& control) {
    return "not for a " + std::string(KindName(control.GetKind()));
}

template <class T>
T* TargetAs(Target& target) {
    T* control = controls::As<T>(*target.control);
    if (control == nullptr) target.error = NotFor(*target.control);
    return control;
}

// Presses a control or toggles a check box.
struct Clicking {
    template <class Pressable>
    CommandError operator()(Pressable& control) const {
        if constexpr (requires { control.Press(); }) {
            control.Press();
            return std::nullopt;
        } else {
            return NotFor(control);
        }
    }
    CommandError operator()(controls::CheckBox& box) const {
        box.Toggle();
        return std::nullopt;
    }
    CommandError operator()(controls::MenuItem& item) const {
        if (item.IsSeparator()) return "a separator can't be clicked";
        item.Press();
        return std::nullopt;
    }
    CommandError operator()(controls::OptionGroup& group) const {
        return "an option is named like " + group.At(0).Name();
    }
};

CommandError Click(CommandContext& c, std::string_view rest) {
    const Target target = ReachTarget(c, rest);
    return target.error ? target.error : controls::Visit(*target.control, Clicking{});
}

CommandError Choose(CommandContext& c, std::string_view rest) {
    Target target = ReachTarget(c, rest);
    if (target.error) return target.error;
    auto* list = TargetAs<controls::List>(target);
    if (list == nullptr) return target.error;
    int index = -1;
    if (!rest.empty() && rest.front() == '#')
        index = WholeNumber(rest.substr(1), 0, list->Count() - 1).value_or(-1);
    else
        index = list->IndexOfText(rest);
    if (index < 0) return "the list has no entry " + std::string(rest);
    list->Choose(index);
    return std::nullopt;
}

CommandError Open(CommandContext& c, std::string_view rest) {
    Target target = ReachTarget(c, rest);
    if (target.error) return target.error;
    if (auto* list = TargetAs<controls::List>(target)) list->Open();
    return target.error;
}

CommandError Type(CommandContext& c, std::string_view rest) {
    Target target = ReachTarget(c, rest);
    if (target.error) return target.error;
    if (auto* box = TargetAs<controls::TextBox>(target)) {
        c.typedInto = box;
        box->Type(std::string(rest));
    }
    return target.error;
}

CommandError Press(CommandContext& c, std::string_view rest) {
    const Target target = ReachTarget(c, rest);
    const controls::Key key(TakeWord(rest));
    if (target.error) return target.error;
    if (key.empty()) return "the key is missing";
    return controls::Visit(*target.control, [&](auto& control) -> CommandError {
        if constexpr (requires { control.PressKey(key); }) {
            control.PressKey(key);
            return std::nullopt;
        } else {
            return NotFor(control);
        }
    });
}

CommandError ClickCell(CommandContext& c, std::string_view rest) {
    Target target = ReachTarget(c, rest);
    if (target.error) return target.error;
    auto* grid = TargetAs<controls::Grid>(target);
    if (grid == nullptr) return target.error;
    const auto row = WholeNumber(TakeWord(rest), 0, grid->Rows() - 1);
    const auto column = WholeNumber(TakeWord(rest), 0, grid->Columns() - 1);
    const std::string_view act = TakeWord(rest);
    if (!row || !column) return "the grid has no such cell";
    if (!act.empty() && act != "press") return "after the cell comes press or nothing";
    grid->PressCell(*row, *column);
    if (act.empty()) grid->ClickCell(*row, *column);
    return std::nullopt;
}

CommandError Drag(CommandContext& c, std::string_view rest) {
    Target target = ReachTarget(c, rest);
    if (target.error) return target.error;
    auto* graph = TargetAs<controls::Graph>(target);
    if (graph == nullptr) return target.error;
    const auto cursor = WholeNumber(TakeWord(rest), 0, graph->CursorCount() - 1);
    const auto x = RealNumber(TakeWord(rest));
    const std::string_view yText = TakeWord(rest);
    if (!cursor) return "the graph has no such cursor";
    const auto y = yText.empty() ? graph->CursorAt(*cursor).y : RealNumber(yText);
    if (!x || !y) return "a position is a number";
    if (graph->Track() != controls::TrackMode::CursorEvents)
        return "no cursor can be dragged while the graph's zoom is on";
    if (!graph->DragCursor(*cursor, *x, *y)) return "the cursor is hidden";
    graph->ReleaseCursor(*cursor);  // refused only if the drag has removed the cursor
    return std::nullopt;
}

CommandError Zoom(CommandContext& c, std::string_view rest) {
    Target target = ReachTarget(c, rest);
    if (target.error) return target.error;
    auto* graph = TargetAs<controls::Graph>(target);
    if (graph == nullptr) return target.error;
    if (util::TrimSpaces(rest).empty()) {
        graph->ZoomOut();
        return std::nullopt;
    }
    std::array<std::optional<double>, 4> edges;
    for (auto& edge : edges) edge = RealNumber(TakeWord(rest));
    const auto& [x1, x2, y1, y2] = edges;
    if (!x1 || !x2 || !y1 || !y2) return "zoom GRAPH X1 X2 Y1 Y2, four numbers or none";
    if (graph->Track() != controls::TrackMode::ZoomRectangle) return "the graph's zoom is off";
    if (!graph->Zoom({*x1, *x2}, {*y1, *y2})) return "X1 must be below X2, and Y1 below Y2";
    return std::nullopt;
}

controls::Window* NamedWindow(CommandContext& c, std::string_view& rest) {
    if (c.typedInto != nullptr) std::exchange(c.typedInto, nullptr)->Leave();
    return c.kelvra.forms.FindFormByName(TakeWord(rest));
}

CommandError Resize(CommandContext& c, std::string_view rest) {
    constexpr int largest = 1'000'000;
    controls::Window* window = NamedWindow(c, rest);
    if (window == nullptr) return "there is no such window";
    const auto width = WholeNumber(TakeWord(rest), 0, largest);
    const auto height = WholeNumber(TakeWord(rest), 0, largest);
    if (!width || !height) return "width and height are whole numbers of twips";
    window->PersonResizes(*width, *height);
    return std::nullopt;
}

CommandError Answer(CommandContext& c, std::string_view rest) {
    c.dialogs.Queue(std::string(rest));
    return std::nullopt;
}

CommandError Cancel(CommandContext& c, std::string_view) {
    c.dialogs.Queue(std::nullopt);
    return std::nullopt;
}

CommandError Wait(CommandContext& c, std::string_view rest) {
    constexpr int most = 1'000'000'000;
    const std::string_view what = TakeWord(rest);
    if (what == "idle") {
        c.waiting.ForIdle();
        return std::nullopt;
    }
    const auto count = WholeNumber(TakeWord(rest), 0, most);
    const std::string_view limitText = TakeWord(rest);
    const auto limit = WholeNumber(limitText, 0, most);
    const bool wellFormed = count && (what == "ms" ? limitText.empty() : what == "passes") &&
                            (limit || limitText.empty()) && TakeWord(rest).empty();
    if (!wellFormed) return "wait passes N [MS], wait ms N or wait idle";
    if (what == "passes")
        return c.waiting.ForPasses(
            *count, limit ? std::optional(std::chrono::milliseconds(*limit)) : std::nullopt);
    c.waiting.ForTime(std::chrono::milliseconds(*count));
    return std::nullopt;
}

constexpr std::string_view ClipboardName = "Clipboard";

CommandError Print(CommandContext& c, std::string_view rest) {
    if (std::string_view name = rest; TakeWord(name) == ClipboardName) {
        for (const std::string& line : TextLines(c.dialogs.Clipboard())) c.output.Line(line);
        return std::nullopt;
    }
    const Target target = FindTarget(c, rest);
    if (target.error) return target.error;
    for (const std::string& line : PrintLines(*target.control)) c.output.Line(line);
    return std::nullopt;
}

CommandError Dump(CommandContext& c, std::string_view rest) {
    std::string_view name = rest;
    if (TakeWord(name) == ClipboardName) {
        JsonLine json;
        json.BeginObject().Member("text", c.dialogs.Clipboard()).EndObject();
        c.output.Line(json.Text());
        return std::nullopt;
    }
    name = rest;
    if (const auto table = DumpTable(c.kelvra, TakeWord(name))) {
        c.output.Line(*table);
        return std::nullopt;
    }
    const Target target = FindTarget(c, rest);
    if (target.error) return target.error;
    c.output.Line(DumpControl(*target.control));
    return std::nullopt;
}

CommandError Let(CommandContext& c, std::string_view rest) {
    const std::string_view name = TakeWord(rest);
    const auto value = RealNumber(TakeWord(rest));
    if (name.empty() || !value) return "let VAR VALUE, the value a number";
    c.variables.insert_or_assign(std::string(name), *value);
    return std::nullopt;
}

CommandError Eval(CommandContext& c, std::string_view rest) {
    c.output.Line(EvaluateToJson(rest, c.variables, c.kelvra.host));
    return std::nullopt;
}

CommandError Echo(CommandContext& c, std::string_view rest) {
    c.output.Line(rest);
    return std::nullopt;
}

CommandError Close(CommandContext& c, std::string_view rest) {
    if (util::TrimSpaces(rest).empty()) rest = c.kelvra.forms.mdiMain.Name();
    controls::Window* window = NamedWindow(c, rest);
    if (window == nullptr) return "there is no such window";
    window->PersonCloses();
    return std::nullopt;
}

struct Command {
    std::string_view name;
    CommandError (*run)(CommandContext& context, std::string_view rest);
};

constexpr Command Commands[] = {
    {"click", Click},   {"choose", Choose},  {"open", Open},     {"type", Type},
    {"press", Press},   {"cell", ClickCell}, {"drag", Drag},     {"zoom", Zoom},
    {"resize", Resize}, {"answer", Answer},  {"cancel", Cancel}, {"wait", Wait},
    {"print", Print},   {"dump", Dump},      {"let", Let},       {"eval", Eval},
    {"echo", Echo},     {"close", Close},
};

}  // namespace

CommandError RunCommand(CommandContext& context, std::string_view line) {
    const std::string_view name = TakeWord(line);
    for (const Command& command : Commands)
        if (command.name == name) return command.run(context, line);
    return "there is no command " + std::string(name);
}

}  // namespace kelvra::console
