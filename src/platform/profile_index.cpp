// SPDX-License-Identifier: GPL-3.0-or-later
// Where the sections and keys of a ProfileText stand in its bytes: the pass that finds them, and
// the look-ups.
#include <optional>

#include "platform/profile_text.h"
#include "util/text.h"

namespace kelvra::platform {

using util::TrimBlanks;

namespace {

// The name between the first "[" and "]" of a section line.
std::optional<std::string_view> SectionName(std::string_view line) {
    const std::string_view text = TrimBlanks(line);
    if (!text.starts_with('[')) return std::nullopt;
    const auto [name, rest, closed] = util::SplitAtFirst(text.substr(1), ']');
    if (!closed) return std::nullopt;
    return name;
}

}  // namespace

void ProfileText::BuildIndex() {
    lines_.clear();
    sections_.clear();
    IndexFrom(0, bytes_.size(), nullptr);
}

// `section` owns the lines up to the next section line; null where nothing can be found: before the
// first section, and in one whose name an earlier one has.
void ProfileText::IndexFrom(std::size_t begin, std::size_t end, Section* section) {
    while (begin < end) {
        const Line line = LineAt(begin);
        const std::string_view text = TextOf(line);
        begin = Behind(line);
        if (const auto name = SectionName(text)) {
            section = IndexSection(*name, line);
        } else if (section != nullptr && !TrimBlanks(text).empty()) {
            IndexLine(*section, line);
        }
    }
}

ProfileText::Section* ProfileText::IndexSection(std::string_view name, const Line& line) {
    const auto [entry, isFirst] = sections_.try_emplace(NameKey(name));
    if (!isFirst) return nullptr;
    entry->second.lastLine = lines_.size();
    lines_.push_back(line);
    return &entry->second;
}

void ProfileText::IndexLine(Section& section, Line line) {
    const std::string_view text = TextOf(line);
    const auto [key, value, isKey] = util::SplitAtFirst(text, '=');
    if (isKey && !TrimBlanks(text).starts_with(';')) {
        line.valueAt = key.size() + 1;
        section.keys.try_emplace(NameKey(key), lines_.size());
    }
    section.lastLine = lines_.size();
    lines_.push_back(line);
}

ProfileText::Line ProfileText::LineAt(std::size_t begin) const {
    const std::size_t found = bytes_.find_first_of("\r\n", begin);
    const std::size_t end = found == std::string::npos ? bytes_.size() : found;
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

const ProfileText::Line* ProfileText::FindKey(std::string_view section,
                                              std::string_view key) const {
    const auto owner = sections_.find(NameKey(section));
    if (owner == sections_.end()) return nullptr;
    const auto found = owner->second.keys.find(NameKey(key));
    return found == owner->second.keys.end() ? nullptr : &lines_[found->second];
}

std::string_view ProfileText::TextOf(const Line& line) const {
    return std::string_view(bytes_).substr(line.begin, line.end);
}

std::string_view ProfileText::ValueOf(const Line& line) const {
    return TrimBlanks(TextOf(line).substr(line.valueAt));
}

}  // namespace kelvra::platform
