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
    std::string_view value = fallback;
    if (const auto present = sections_.find(NameKey(section)); present != sections_.end())
        if (const Place place = FindKey(present->second, key); place.found)
            value = WithoutQuotes(ValueOf(place.line));
    return std::string(value.substr(0, BufferSize - 1));
}

void ProfileText::Write(std::string_view section, std::string_view key, std::string_view value) {
    const auto present = sections_.find(NameKey(section));
    if (present == sections_.end()) return AddSection(TrimBlanks(section), TrimBlanks(key), value);
    const Place place = FindKey(present->second, key);
    if (!place.found) return AddKey(place.line, TrimBlanks(key), value);
    ReplaceValue(place.line, value);
}

void ProfileText::DeleteKey(std::string_view section, std::string_view key) {
    const auto present = sections_.find(NameKey(section));
    if (present == sections_.end()) return;
    const Place place = FindKey(present->second, key);
    if (place.found) Replace(place.line.begin, Behind(place.line) - place.line.begin, {});
}

void ProfileText::ReplaceValue(const Line& line, std::string_view value) {
    if (ValueOf(line) == value) return;
    // "[a=" is a key, but "[a=b]" is a section.
    const bool plain = !HasLineBreak(value) && !TrimBlanks(TextOf(line)).starts_with('[');
    Replace(line.begin + line.valueAt, line.end - line.valueAt, value);
    if (!plain) BuildIndex();
}

void ProfileText::AddKey(const Line& last, std::string_view key, std::string_view value) {
    if (last.begin + last.end == bytes_.size()) Replace(bytes_.size(), 0, LineBreak);
    Replace(Behind(last), 0, NewLine(key, value));
    // An added line that starts a section takes lines, or a name, from others.
    if (HasLineBreak(key) || HasLineBreak(value) || key.starts_with('[')) BuildIndex();
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
        IndexFrom(at);
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
    for (auto& [name, begin] : sections_)
        if (begin >= behind) begin += growth;
}

}  // namespace kelvra::platform
