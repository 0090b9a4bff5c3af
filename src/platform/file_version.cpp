// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_version.h"

#include <algorithm>
#include <cstdint>

#include "platform/file_tools.h"

namespace kelvra::platform {

namespace {

// Numbers are little-endian. Offsets are 64 bits wide: a sum of a few numbers of a file fits.
using Offset = std::uint64_t;

// Nothing outside the bytes.
template <class Number>
std::optional<Number> NumberAt(std::string_view bytes, Offset at) {
    if (at > bytes.size() || bytes.size() - at < sizeof(Number)) return std::nullopt;
    Number number = 0;
    for (std::size_t i = sizeof(Number); i-- > 0;)
        number = static_cast<Number>(
            number << 8 | static_cast<unsigned char>(bytes[static_cast<std::size_t>(at) + i]));
    return number;
}
const auto Word = NumberAt<std::uint16_t>;
const auto DoubleWord = NumberAt<std::uint32_t>;

std::string_view Part(std::string_view bytes, Offset at, Offset size) {
    if (at >= bytes.size()) return {};
    return bytes.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(size));
}

constexpr std::uint16_t DosSignature = 0x5A4D;     // "MZ"
constexpr std::uint32_t PeSignature = 0x00004550;  // "PE"
constexpr std::uint16_t Optional32 = 0x10B;
constexpr std::uint16_t Optional64 = 0x20B;
constexpr std::uint32_t VersionType = 16;  // RT_VERSION
constexpr std::uint32_t FixedSignature = 0xFEEF04BD;

// Where the parts of an image are: the section table, and the resources by their virtual address.
struct Headers {
    Offset sections = 0;
    std::uint16_t sectionCount = 0;
    std::uint32_t resources = 0;
};

std::optional<Headers> ReadHeaders(std::string_view image) {
    if (Word(image, 0) != DosSignature) return std::nullopt;
    const auto start = DoubleWord(image, 0x3C);
    if (!start || DoubleWord(image, *start) != PeSignature) return std::nullopt;
    const Offset file = Offset{*start} + 4;
    const auto sectionCount = Word(image, file + 2);
    const auto optionalSize = Word(image, file + 16);
    const Offset optional = file + 20;
    const auto kind = Word(image, optional);
    const bool wide = kind == Optional64;
    if (!sectionCount || !optionalSize || (!wide && kind != Optional32)) return std::nullopt;
    // The directory of resources is the third of those at the end of the optional header.
    const Offset directories = optional + (wide ? 112 : 96);
    const auto count = DoubleWord(image, directories - 4);
    const auto resources = DoubleWord(image, directories + 16);
    const bool there = count && *count > 2 && resources && *resources != 0 &&
                       directories + 24 <= optional + *optionalSize;
    if (!there) return std::nullopt;
    return Headers{optional + *optionalSize, *sectionCount, *resources};
}

// The bytes from a virtual address to the end of what its section has in the file.
std::string_view At(std::string_view image, const Headers& headers, std::uint32_t address) {
    for (std::uint16_t i = 0; i < headers.sectionCount; ++i) {
        const Offset section = headers.sections + Offset{i} * 40;
        const auto begin = DoubleWord(image, section + 12);
        const auto size = DoubleWord(image, section + 16);
        const auto data = DoubleWord(image, section + 20);
        if (!begin || !size || !data) return {};
        if (address >= *begin && address - *begin < *size) {
            const std::uint32_t skipped = address - *begin;
            return Part(image, Offset{*data} + skipped, *size - skipped);
        }
    }
    return {};
}

// An entry of a resource directory: the place of what it leads to, and whether that is one more
// directory.
struct Entry {
    std::uint32_t place = 0;
    bool directory = false;
};

// The first entry with this number, or the first of all. Entries with names come before those with
// numbers.
std::optional<Entry> FindEntry(std::string_view resources, std::uint32_t directory,
                               std::optional<std::uint32_t> number) {
    constexpr std::uint32_t high = 0x80000000;
    const auto named = Word(resources, Offset{directory} + 12);
    const auto numbered = Word(resources, Offset{directory} + 14);
    if (!named || !numbered) return std::nullopt;
    const Offset first = Offset{directory} + 16;
    for (Offset i = number ? *named : 0; i < Offset{*named} + *numbered; ++i) {
        const auto id = DoubleWord(resources, first + i * 8);
        const auto place = DoubleWord(resources, first + i * 8 + 4);
        if (!id || !place) return std::nullopt;
        if (!number || *id == *number) return Entry{*place & ~high, (*place & high) != 0};
    }
    return std::nullopt;
}

// Type, name and language: three directories, one in the other, and then the data. A directory that
// contains itself can't lead further than that.
std::optional<Entry> FindVersionData(std::string_view resources) {
    auto entry = FindEntry(resources, 0, VersionType);
    for (int level = 1; level < 3 && entry; ++level)
        entry = entry->directory ? FindEntry(resources, entry->place, std::nullopt) : std::nullopt;
    return entry && !entry->directory ? entry : std::nullopt;
}

// The fixed part follows the block's three lengths and its key, at a multiple of four.
std::optional<std::string> FixedVersion(std::string_view block) {
    constexpr std::string_view key("V\0S\0_\0V\0E\0R\0S\0I\0O\0N\0_\0I\0N\0F\0O\0\0\0", 32);
    constexpr Offset keyAt = 6;
    constexpr Offset fixedAt = (keyAt + key.size() + 3) / 4 * 4;
    if (Part(block, keyAt, key.size()) != key) return std::nullopt;
    const std::string_view fixed = Part(block, fixedAt, block.size());
    if (DoubleWord(fixed, 0) != FixedSignature) return std::nullopt;
    std::string text;
    for (const Offset place : {10, 8, 14, 12}) {  // the upper half of a double word comes second
        const auto number = Word(fixed, place);
        if (!number) return std::nullopt;
        if (!text.empty()) text += '.';
        text += std::to_string(*number);
    }
    return text;
}

}  // namespace

std::optional<std::string> VersionOfImage(std::string_view image) {
    const auto headers = ReadHeaders(image);
    if (!headers) return std::nullopt;
    const std::string_view resources = At(image, *headers, headers->resources);
    const auto entry = FindVersionData(resources);
    if (!entry) return std::nullopt;
    const auto address = DoubleWord(resources, entry->place);
    const auto size = DoubleWord(resources, Offset{entry->place} + 4);
    if (!address || !size) return std::nullopt;
    const std::string_view block = At(image, *headers, *address);
    return block.size() < *size ? std::nullopt : FixedVersion(block.substr(0, *size));
}

std::string FileVersion(Files& files, const std::string& path) {
    std::string image;
    if (ReadWholeFile(files, path, image, LargestImage)) return {};
    return VersionOfImage(image).value_or("");
}

}  // namespace kelvra::platform
