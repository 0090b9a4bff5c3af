// SPDX-License-Identifier: GPL-3.0-or-later
#include "console/print.h"

#include "console/output.h"
#include "controls/rtf_reader.h"
#include "controls/visit.h"
#include "util/text.h"

namespace kelvra::console {

namespace {

// Escapes a TAB, which would look like the next cell.
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

struct Lines {
    using Result = std::vector<std::string>;

    // Labels, buttons and others show their caption.
    template <class Captioned>
    Result operator()(const Captioned& control) const {
        return {OneLine(control.caption.Get())};
    }
    Result operator()(const controls::TextBox& box) const { return {OneLine(box.Text())}; }
    Result operator()(const controls::OptionGroup& group) const {
        return (*this)(group.At(group.Selected()));
    }
    Result operator()(const controls::List& list) const { return ListLines(list); }
    Result operator()(const controls::Grid& grid) const { return GridLines(grid); }
    Result operator()(const controls::Graph&) const { return {}; }  // dump shows its content
    Result operator()(const controls::RichText& text) const {
        return controls::RtfLines(text.rtf.Get());
    }
    Result operator()(const controls::Picture& picture) const { return {picture.image.Get()}; }
};

}  // namespace

std::vector<std::string> TextLines(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const util::SplitText line = util::SplitAtFirst(text, '\n');
        lines.emplace_back(util::TrimLineBreaks(line.before));
        text = line.after;
    }
    return lines;
}

std::vector<std::string> PrintLines(const controls::Control& control) {
    return controls::Visit(control, Lines{});
}

}  // namespace kelvra::console
