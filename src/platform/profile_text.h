// SPDX-License-Identifier: GPL-3.0-or-later
// Profile strings (the text of an INI file): sections of key=value lines, edited in place with one
// pass over the text. Lines that are not concerned keep their bytes, whatever these are. Where the
// text comes from and goes to is ProfileFile's business.
//
// The rules are those of the Windows profile functions: names without regard to ASCII case, the
// first section and in it the first key of a name win, blanks around names and values are not part
// of them, one pair of quotes around a value is taken off when reading, nothing is escaped when
// writing, a value that is there already changes nothing.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

namespace kelvra::platform {

class ProfileText {
public:
    explicit ProfileText(std::string bytes = {});

    // The value as a caller's buffer of 750 characters with its NUL would hold it: 749 bytes at
    // most. The fallback, cut alike, stands in for a key that is not there.
    static constexpr std::size_t BufferSize = 750;
    std::string Read(std::string_view section, std::string_view key,
                     std::string_view fallback) const;

    void Write(std::string_view section, std::string_view key, std::string_view value);
    void DeleteKey(std::string_view section, std::string_view key);

    const std::string& Bytes() const { return bytes_; }
    bool Changed() const { return changed_; }  // since construction

private:
    // Its parts count from its beginning.
    struct Line {
        std::size_t begin = 0;
        std::size_t valueAt = 0;  // behind the "="; 0 in a line that holds no key
        std::size_t end = 0;      // before the line break, if it has one
    };

    // A key's line, or where it would be added: behind the last line of its section.
    struct Place {
        Line line;
        bool found = false;
    };

    void BuildIndex();
    void IndexFrom(std::size_t begin);
    Line LineAt(std::size_t begin) const;
    std::size_t Behind(const Line& line) const;  // where the next line begins

    static std::string NameKey(std::string_view name);  // trimmed and lower-cased
    Place FindKey(std::size_t sectionBegin, std::string_view key) const;
    std::string_view TextOf(const Line& line) const;
    std::string_view ValueOf(const Line& line) const;

    void ReplaceValue(const Line& line, std::string_view value);
    void AddKey(const Line& last, std::string_view key, std::string_view value);
    void AddSection(std::string_view section, std::string_view key, std::string_view value);
    void Replace(std::size_t at, std::size_t count, std::string_view text);

    std::string bytes_;
    bool changed_ = false;
    // Where the first section of each name begins, by lower-cased name. Keys have no index: a block
    // of settings looks into few of the sections, and these are short.
    std::unordered_map<std::string, std::size_t> sections_;
};

}  // namespace kelvra::platform
