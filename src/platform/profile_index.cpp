// SPDX-License-Identifier: GPL-3.0-or-later
// Where the sections and keys of a ProfileText stand in its bytes: the pass that finds the
// sections, and the look-ups.
#include <optional>

#include "platform/profile_text.h"
#include "util/text.h"

namespace kelvra::platform {

using util::TrimBlanks;

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}
bool IsLineBreak(char c) {
    return c == '\r' || c == '\n';
}

// The name between the first "[" and "]" of a section line.
std::optional<std::string_view> SectionName(std::string_view line) {
    if (line.find('[') == std::string_view::npos)
        return std::nullopt;  // most lines, at little cost
    const std::string_view text = TrimBlanks(line);
    if (!text.starts_with('[')) return std::nullopt;
    const auto [name, rest, closed] = util::SplitAtFirst(text.substr(1), ']');
    if (!closed) return std::nullopt;
    return name;
}

}  // namespace

void ProfileText::BuildIndex() {
    sections_.clear();
    IndexFrom(0);
}

// Goes from bracket to bracket instead of from line to line: there are few of them.
void ProfileText::IndexFrom(std::size_t begin) {
    for (std::size_t at = begin; (at = bytes_.find('[', at)) != std::string::npos; ++at) {
        std::size_t lineBegin = at;
        while (lineBegin > 0 && IsBlank(bytes_[lineBegin - 1])) --lineBegin;
        if (lineBegin > 0 && !IsLineBreak(bytes_[lineBegin - 1])) continue;
        if (const auto name = SectionName(TextOf(LineAt(lineBegin))))
            sections_.try_emplace(NameKey(*name), lineBegin);
    }
}

// A loop of its own: the library's search for one of several characters is several times slower.
ProfileText::Line ProfileText::LineAt(std::size_t begin) const {
    std::size_t end = begin;
    while (end < bytes_.size() && !IsLineBreak(bytes_[end])) ++end;
    return {begin, 0, end - begin};
}

std::size_t ProfileText::Behind(const Line& line) const {
    std::size_t at = line.begin + line.end;
    if (at < bytes_.size() && bytes_[at] == '\r') ++at;
    if (at < bytes_.size() && bytes_[at] == '\n') ++at;
    return at;
}

std::string ProfileText::NameKey(std::string_view name) {
    return util::LowerCase(TrimBlanks(name));
}

ProfileText::Place ProfileText::FindKey(std::size_t sectionBegin, std::string_view key) const {
    const std::string_view wanted = TrimBlanks(key);
    Line last = LineAt(sectionBegin);
    for (std::size_t at = Behind(last); at < bytes_.size();) {
        Line line = LineAt(at);
        at = Behind(line);
        const std::string_view text = TextOf(line);
        if (SectionName(text)) break;
        if (TrimBlanks(text).empty()) continue;
        last = line;
        const auto [name, value, isKey] = util::SplitAtFirst(text, '=');
        if (!isKey || TrimBlanks(text).starts_with(';')) continue;
        if (!util::EqualNoCase(TrimBlanks(name), wanted)) continue;
        line.valueAt = name.size() + 1;
        return {line, true};
    }
    return {last, false};
}

std::string_view ProfileText::TextOf(const Line& line) const {
    return std::string_view(bytes_).substr(line.begin, line.end);
}

std::string_view ProfileText::ValueOf(const Line& line) const {
    return TrimBlanks(TextOf(line).substr(line.valueAt));
}

}  // namespace kelvra::platform
