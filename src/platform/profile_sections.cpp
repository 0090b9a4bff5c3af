// SPDX-License-Identifier: GPL-3.0-or-later
// The sections and keys of a ProfileText: the pass that finds the sections, and the look-ups.
#include <algorithm>
#include <optional>
#include <utility>

#include "platform/profile_lines.h"
#include "platform/profile_text.h"
#include "util/text.h"

namespace kelvra::platform {

using util::TrimBlanks;

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

// The trimmed name between the first "[" and "]" of a heading.
std::optional<std::string_view> HeadingName(std::string_view line) {
    const std::string_view text = TrimBlanks(line);
    if (!text.starts_with('[')) return std::nullopt;
    const auto [name, rest, closed] = util::SplitAtFirst(text.substr(1), ']');
    if (!closed) return std::nullopt;
    return TrimBlanks(name);
}

}  // namespace

// Searches for brackets instead of going through all lines: there are few of them.
void ProfileText::FindSections() {
    const std::string_view all = bytes_;
    sections_.assign(1, {});
    lastFound_ = 0;
    for (std::size_t at = 0; (at = all.find('[', at)) != std::string_view::npos; ++at) {
        std::size_t begin = at;
        while (begin > 0 && IsBlank(all[begin - 1])) --begin;
        if (begin > 0 && !IsLineBreak(all[begin - 1])) continue;
        const std::size_t end = EndOfLine(all, at);
        const auto name = HeadingName(all.substr(begin, end - begin));
        if (!name) continue;
        sections_.back().size = begin - sections_.back().begin;
        Section section;
        section.begin = begin;
        section.nameAt = static_cast<std::size_t>(name->data() - all.data()) - begin;
        section.nameSize = name->size();
        sections_.push_back(std::move(section));
    }
    sections_.back().size = all.size() - sections_.back().begin;
}

std::string_view ProfileText::TextOf(const Section& section) const {
    if (section.edited) return *section.edited;
    return std::string_view(bytes_).substr(section.begin, section.size);
}

std::string_view ProfileText::NameOf(const Section& section) const {
    return TextOf(section).substr(section.nameAt, section.nameSize);
}

const ProfileText::Section* ProfileText::SectionNamed(std::string_view name) const {
    const std::string_view wanted = TrimBlanks(name);
    const auto matches = [&](const Section& section) {
        return section.nameSize == wanted.size() && util::EqualNoCase(NameOf(section), wanted);
    };
    if (lastFound_ > 0 && matches(sections_[lastFound_])) return &sections_[lastFound_];
    const auto found = std::find_if(sections_.begin() + 1, sections_.end(), matches);
    if (found == sections_.end()) return nullptr;
    lastFound_ = static_cast<std::size_t>(found - sections_.begin());
    return &*found;
}

ProfileText::Section* ProfileText::SectionNamed(std::string_view name) {
    return const_cast<Section*>(std::as_const(*this).SectionNamed(name));
}

ProfileText::Place ProfileText::FindKey(std::string_view section, std::string_view key) {
    const std::string_view wanted = TrimBlanks(key);
    Line last{0, 0, EndOfLine(section, 0)};  // the heading
    for (std::size_t at = BehindLineBreak(section, last.end); at < section.size();) {
        Line line{at, 0, EndOfLine(section, at) - at};
        const std::string_view text = section.substr(at, line.end);
        at = BehindLineBreak(section, at + line.end);
        const auto [before, value, hasValue] = util::SplitAtFirst(text, '=');
        const std::string_view name = TrimBlanks(before);
        if (name.empty() && !hasValue) continue;
        last = line;
        if (name.starts_with(';') || !util::EqualNoCase(name, wanted)) continue;
        line.hasValue = hasValue;
        line.valueAt = hasValue ? before.size() + 1
                                : static_cast<std::size_t>(name.data() - text.data()) + name.size();
        return {line, true};
    }
    return {last, false};
}

}  // namespace kelvra::platform
