// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/profile_text.h"

#include <algorithm>
#include <utility>

#include "platform/profile_lines.h"
#include "util/text.h"

namespace kelvra::platform {

namespace {

using util::TrimBlanks;

constexpr std::string_view LineBreak = "\r\n";

bool HasLineBreak(std::string_view text) {
    return std::any_of(text.begin(), text.end(), IsLineBreak);
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
    FindSections();
}

std::optional<std::string> ProfileText::Find(std::string_view section, std::string_view key) const {
    const Section* present = SectionNamed(section);
    if (present == nullptr) return std::nullopt;
    const std::string_view text = TextOf(*present);
    const Place place = FindKey(text, key);
    if (!place.found || !place.line.hasValue) return std::nullopt;
    const std::string_view line = text.substr(place.line.begin, place.line.end);
    return std::string(
        WithoutQuotes(TrimBlanks(line.substr(place.line.valueAt))).substr(0, BufferSize - 1));
}

std::string ProfileText::Read(std::string_view section, std::string_view key,
                              std::string_view fallback) const {
    if (auto value = Find(section, key)) return *std::move(value);
    const std::string_view trimmed = fallback.substr(0, fallback.find_last_not_of(' ') + 1);
    return std::string(WithoutQuotes(trimmed).substr(0, BufferSize - 1));
}

void ProfileText::Write(std::string_view section, std::string_view key, std::string_view value) {
    Section* present = SectionNamed(section);
    if (present == nullptr) return AddSection(TrimBlanks(section), TrimBlanks(key), value);
    const Place place = FindKey(TextOf(*present), key);
    if (!place.found) return AddKey(*present, place.line, TrimBlanks(key), value);
    ReplaceValue(*present, place.line, value);
}

void ProfileText::DeleteKey(std::string_view section, std::string_view key) {
    Section* present = SectionNamed(section);
    if (present == nullptr) return;
    const std::string_view text = TextOf(*present);
    const Place place = FindKey(text, key);
    if (!place.found) return;
    const std::size_t end = BehindLineBreak(text, place.line.begin + place.line.end);
    Replace(*present, place.line.begin, end - place.line.begin, {});
}

void ProfileText::ReplaceValue(Section& section, const Line& line, std::string_view value) {
    const std::string_view text = TextOf(section).substr(line.begin, line.end);
    if (line.hasValue && TrimBlanks(text.substr(line.valueAt)) == value) return;
    // "[a=" is a key, but "[a=b]" is a section.
    const bool plain = !HasLineBreak(value) && !TrimBlanks(text).starts_with('[');
    std::string added(value);
    if (!line.hasValue) added.insert(0, 1, '=');
    Replace(section, line.begin + line.valueAt, line.end - line.valueAt, added);
    if (!plain) Renew();
}

void ProfileText::AddKey(Section& section, const Line& last, std::string_view key,
                         std::string_view value) {
    std::size_t behind = BehindLineBreak(TextOf(section), last.begin + last.end);
    std::string added = NewLine(key, value);
    if (behind == last.begin + last.end) added.insert(0, LineBreak);
    Replace(section, behind, 0, added);
    // An added line that starts a section takes over the lines, or the name, of another.
    if (HasLineBreak(key) || HasLineBreak(value) || key.starts_with('[')) Renew();
}

void ProfileText::AddSection(std::string_view name, std::string_view key, std::string_view value) {
    Section& last = sections_.back();
    if (const std::string_view text = TextOf(last); !text.empty() && !IsLineBreak(text.back()))
        Replace(last, text.size(), 0, LineBreak);
    Section added;
    added.nameAt = 1;
    added.nameSize = name.size();
    added.edited = "[" + std::string(name) + "]";
    added.edited->append(LineBreak).append(NewLine(key, value));
    sections_.push_back(std::move(added));
    changed_ = true;
    // The new text starts a further section, or its name can't be read back.
    if (HasLineBreak(name) || name.find(']') != std::string_view::npos || HasLineBreak(key) ||
        HasLineBreak(value) || key.starts_with('['))
        Renew();
}

void ProfileText::Replace(Section& section, std::size_t at, std::size_t count,
                          std::string_view text) {
    if (TextOf(section).substr(at, count) == text) return;
    if (!section.edited) section.edited = TextOf(section);
    section.edited->replace(at, count, text);
    changed_ = true;
}

std::string ProfileText::Bytes() const {
    std::string bytes;
    bytes.reserve(bytes_.size() + BufferSize);
    for (const Section& section : sections_) bytes += TextOf(section);
    return bytes;
}

void ProfileText::Renew() {
    bytes_ = Bytes();
    FindSections();
}

}  // namespace kelvra::platform
