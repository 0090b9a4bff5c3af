// SPDX-License-Identifier: GPL-3.0-or-later
// Profile strings (the text of an INI file): sections of key=value lines, edited in place with one
// pass over the text. Lines that are not edited keep their bytes. ProfileFile loads and saves the
// text.
//
// The rules are those of the Windows profile functions. Names ignore ASCII case. The first section
// of a name counts, and the first key in it. Spaces and tabs around names and values are not part
// of them. Reading takes one pair of quotes off a value; writing escapes nothing, and writing a
// value that is already there changes nothing. A line without "=" is a key without a value: it
// counts as the key, but reads as the fallback.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvra::platform {

class ProfileText {
public:
    explicit ProfileText(std::string bytes = {});

    // At most 749 bytes of the value: what fits into a caller's buffer of 750 characters with its
    // NUL. Find gives nothing when the key is missing or has no value. Read gives the fallback
    // then, without its trailing spaces and one pair of quotes, cut in the same way.
    static constexpr std::size_t BufferSize = 750;
    std::optional<std::string> Find(std::string_view section, std::string_view key) const;
    std::string Read(std::string_view section, std::string_view key,
                     std::string_view fallback) const;

    bool HasSection(std::string_view name) const { return SectionNamed(name) != nullptr; }

    void Write(std::string_view section, std::string_view key, std::string_view value);
    void DeleteKey(std::string_view section, std::string_view key);

    std::string Bytes() const;
    bool Changed() const { return changed_; }  // since construction

private:
    // A heading and the lines up to the next heading. Only the first section has no heading.
    struct Section {
        std::size_t begin = 0;  // in bytes_
        std::size_t size = 0;
        std::size_t nameAt = 0;  // in the section's text, trimmed
        std::size_t nameSize = 0;
        std::optional<std::string> edited;  // replaces those bytes
    };

    // A line; its offsets count from its beginning, which is an offset in its section.
    struct Line {
        std::size_t begin = 0;
        std::size_t valueAt = 0;  // of a key: after the "=", or after the name if there is none
        std::size_t end = 0;      // before the line break, if it has one
        bool hasValue = false;
    };

    // A key's line, or, when not found, the last line of the section, after which it would be
    // added.
    struct Place {
        Line line;
        bool found = false;
    };

    // profile_sections.cpp
    void FindSections();
    std::string_view TextOf(const Section& section) const;
    std::string_view NameOf(const Section& section) const;
    Section* SectionNamed(std::string_view name);
    const Section* SectionNamed(std::string_view name) const;
    static Place FindKey(std::string_view section, std::string_view key);

    void ReplaceValue(Section& section, const Line& line, std::string_view value);
    void AddKey(Section& section, const Line& last, std::string_view key, std::string_view value);
    void AddSection(std::string_view name, std::string_view key, std::string_view value);
    void Replace(Section& section, std::size_t at, std::size_t count, std::string_view text);
    void Renew();

    std::string bytes_;
    std::vector<Section> sections_;
    mutable std::size_t lastFound_ = 0;  // a block of settings asks for the same section many times
    bool changed_ = false;
};

}  // namespace kelvra::platform
