// SPDX-License-Identifier: GPL-3.0-or-later
// A library for Windows that has nothing but a version, and where its parts are, so that a test can
// damage them.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace kelvra::test {

class Image {
public:
    using Version = std::array<std::uint16_t, 4>;

    explicit Image(const Version& version, bool wide = false) : bytes(End, '\0') {
        Put(0, "MZ");
        Put32(PeOffset, Pe);
        Put(Pe, "PE");
        Put16(SectionCount, 2);
        Put16(OptionalSize, static_cast<std::uint16_t>(Sections - Optional));
        Put16(Optional, wide ? 0x20B : 0x10B);
        const std::size_t directories = Optional + (wide ? 112 : 96);
        Put32(directories - 4, 16);
        resourcesAt = directories + 16;
        Put32(resourcesAt, Address);
        PutSection(Sections, 0x1000, 0x200);
        PutSection(Sections + 40, Address, Resources);
        // Icons and a version; below that its name, its language, its data.
        PutDirectory(Resources, {{3, 0x7000}, {16, High + 0x40}});
        PutDirectory(Resources + 0x40, {{1, High + 0x60}});
        PutDirectory(Resources + 0x60, {{1033, 0x80}});
        Put32(Data, Address + 0x90);
        Put32(Data + 4, static_cast<std::uint32_t>(End - Block));
        for (std::size_t i = 0; const char c : std::string("VS_VERSION_INFO"))
            bytes[Block + 6 + 2 * i++] = c;
        Put32(Fixed, 0xFEEF04BD);
        for (const std::size_t i : {0, 1, 2, 3})
            Put16(Fixed + 8 + 4 * (i / 2) + (i % 2 == 0 ? 2 : 0), version[i]);
    }

    void Put16(std::size_t at, std::uint16_t number) {
        for (const int shift : {0, 8}) bytes[at++] = static_cast<char>(number >> shift);
    }
    void Put32(std::size_t at, std::uint32_t number) {
        for (const int half : {0, 16})
            Put16(at + static_cast<std::size_t>(half / 8),
                  static_cast<std::uint16_t>(number >> half));
    }

    static constexpr std::uint32_t High = 0x80000000;  // leads to a directory
    static constexpr std::uint32_t Address = 0x3000;   // of the resources in memory
    static constexpr std::size_t PeOffset = 0x3C, Pe = 0x40, SectionCount = Pe + 6,
                                 OptionalSize = Pe + 20, Optional = Pe + 24, Sections = 0x148,
                                 Resources = 0x200, Data = Resources + 0x80,
                                 Block = Resources + 0x90, Fixed = Block + 40, End = Fixed + 52;
    std::string bytes;
    std::size_t resourcesAt = 0;  // their entry in the optional header

private:
    struct Entry {
        std::uint32_t id, place;
    };

    void Put(std::size_t at, const std::string& text) { bytes.replace(at, text.size(), text); }
    void PutSection(std::size_t at, std::uint32_t address, std::size_t data) {
        Put32(at + 12, address);
        Put32(at + 16, static_cast<std::uint32_t>(End - data));
        Put32(at + 20, static_cast<std::uint32_t>(data));
    }
    void PutDirectory(std::size_t at, std::initializer_list<Entry> entries) {
        Put16(at + 14, static_cast<std::uint16_t>(entries.size()));
        at += 16;
        for (const Entry& entry : entries) {
            Put32(at, entry.id);
            Put32(at + 4, entry.place);
            at += 8;
        }
    }
};

}  // namespace kelvra::test
