// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/print.h"

#include "console/output.h"
#include "controls/graph.h"
#include "controls/grid.h"
#include "controls/kinds.h"
#include "controls/list.h"

namespace kelvra::console {

namespace {

template <class T>
const T& As(const controls::Control& control) {
    return static_cast<const T&>(control);
}

// A TAB in a cell must not look like the next cell.
std::string OneCell(std::string_view text) {
    std::string cell = OneLine(text);
    for (auto tab = cell.find('\t'); tab != std::string::npos; tab = cell.find('\t', tab))
        cell.replace(tab, 1, "\\t");
    return cell;
}

std::vector<std::string> GridLines(const controls::Grid& grid) {
    std::vector<std::string> lines;
    for (int row = 0; row < grid.Rows(); ++row) {
        std::string line;
        for (int column = 0; column < grid.Columns(); ++column) {
            if (column > 0) line += '\t';
            line += OneCell(grid.At(row, column).Text());
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

std::vector<std::string> ListLines(const controls::List& list) {
    std::vector<std::string> lines;
    for (const auto& item : list.Items()) lines.push_back(OneLine(item.text));
    return lines;
}

// The member, or the selected one for the whole group.
std::string OptionCaption(const controls::OptionGroup& group, int member) {
    const int option = member >= 0 ? member : group.Selected();
    return group.Options()[static_cast<std::size_t>(option)].caption;
}

}  // namespace

std::vector<std::string> PrintLines(const controls::Control& control, int member) {
    using namespace controls;
    switch (control.GetKind()) {
        case Kind::Grid:
            return GridLines(As<Grid>(control));
        case Kind::List:
            return ListLines(As<List>(control));
        case Kind::Label:
            return {OneLine(As<Label>(control).caption.Get())};
        case Kind::Button:
            return {OneLine(As<Button>(control).caption.Get())};
        case Kind::MenuItem:
            return {OneLine(As<MenuItem>(control).caption.Get())};
        case Kind::TextBox:
            return {OneLine(As<TextBox>(control).Text())};
        case Kind::CheckBox:
            return {OneLine(As<CheckBox>(control).caption.Get())};
        case Kind::OptionGroup:
            return {OptionCaption(As<OptionGroup>(control), member)};
        case Kind::RichText:
            return {OneLine(As<RichText>(control).rtf.Get())};
        case Kind::Picture:
            return {As<Picture>(control).image.Get()};
        case Kind::Frame:
            return {OneLine(As<Frame>(control).caption.Get())};
        case Kind::Window:
            return {OneLine(As<Window>(control).caption.Get())};
        case Kind::Graph:
            break;  // its content is for dump
    }
    return {};
}

}  // namespace kelvra::console
