// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/profile_text.h"

#include <utility>

#include "util/text.h"

namespace kelvra::platform {

namespace {

using util::TrimBlanks;

constexpr std::string_view LineBreak = "\r\n";

bool HasLineBreak(std::string_view text) {
    return text.find_first_of(LineBreak) != std::string_view::npos;
}

std::string_view WithoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

std::string NewLine(std::string_view key, std::string_view value) {
    std::string line(key);
    line += '=';
    line += value;
    line += LineBreak;
    return line;
}

}  // namespace

ProfileText::ProfileText(std::string bytes) : bytes_(std::move(bytes)) {
    BuildIndex();
}

std::string ProfileText::Read(std::string_view section, std::string_view key,
                              std::string_view fallback) const {
    const Line* line = FindKey(section, key);
    const std::string_view value = line == nullptr ? fallback : WithoutQuotes(ValueOf(*line));
    return std::string(value.substr(0, BufferSize - 1));
}

void ProfileText::Write(std::string_view section, std::string_view key, std::string_view value) {
    const auto present = sections_.find(NameKey(section));
    if (present == sections_.end()) return AddSection(TrimBlanks(section), TrimBlanks(key), value);
    const auto line = present->second.keys.find(NameKey(key));
    if (line == present->second.keys.end()) return AddKey(present->second, TrimBlanks(key), value);
    ReplaceValue(lines_[line->second], value);
}

void ProfileText::DeleteKey(std::string_view section, std::string_view key) {
    const Line* line = FindKey(section, key);
    if (line == nullptr) return;
    Replace(line->begin, Behind(*line) - line->begin, {});
    BuildIndex();  // a second key of the name is the first one now
}

void ProfileText::ReplaceValue(Line& line, std::string_view value) {
    if (ValueOf(line) == value) return;
    // "[a=" is a key, but "[a=b]" is a section.
    const bool plain = !HasLineBreak(value) && !TrimBlanks(TextOf(line)).starts_with('[');
    const std::size_t oldSize = line.end - line.valueAt;
    Replace(line.begin + line.valueAt, oldSize, value);
    line.end += value.size() - oldSize;
    if (!plain) BuildIndex();
}

void ProfileText::AddKey(Section& section, std::string_view key, std::string_view value) {
    const std::string added = NewLine(key, value);
    const Line& last = lines_[section.lastLine];
    if (last.begin + last.end == bytes_.size()) Replace(bytes_.size(), 0, LineBreak);
    const std::size_t at = Behind(last);
    Replace(at, 0, added);
    // An added line that starts a section takes lines, or a name, from others.
    const bool plain = !HasLineBreak(key) && !HasLineBreak(value) && !key.starts_with('[');
    if (plain) {
        IndexFrom(at, at + added.size(), &section);
    } else {
        BuildIndex();
    }
}

void ProfileText::AddSection(std::string_view section, std::string_view key,
                             std::string_view value) {
    const bool startsSection = !HasLineBreak(section);
    std::string added;
    if (!bytes_.empty() && !HasLineBreak({&bytes_.back(), 1})) added += LineBreak;
    const std::size_t at = bytes_.size() + added.size();
    added += '[';
    added += section;
    added += ']';
    added += LineBreak;
    added += NewLine(key, value);
    Replace(bytes_.size(), 0, added);
    if (startsSection) {
        IndexFrom(at, bytes_.size(), nullptr);
    } else {
        BuildIndex();
    }
}

void ProfileText::Replace(std::size_t at, std::size_t count, std::string_view text) {
    if (std::string_view(bytes_).substr(at, count) == text) return;
    const std::size_t behind = at + count;
    const std::size_t growth = text.size() - count;  // wraps round for a shorter text, as does +=
    bytes_.replace(at, count, text);
    changed_ = true;
    for (Line& line : lines_)
        if (line.begin >= behind) line.begin += growth;
}

}  // namespace kelvra::platform
