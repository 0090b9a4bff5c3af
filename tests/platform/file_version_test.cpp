// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_version.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/file_lookup.h"
#include "platform/native.h"
#include "platform/windows_version.h"
#include "support/image.h"
#include "support/temp_folder.h"

namespace kelvra::platform {

using test::Image;

constexpr Image::Version Sample = {5, 1, 2600, 65535};

TEST(FileVersion, IsReadFromImagesOfBothWidths) {
    for (const bool wide : {false, true})
        EXPECT_EQ(VersionOfImage(Image(Sample, wide).bytes), "5.1.2600.65535") << wide;
}

TEST(FileVersion, ADamagedImageHasNone) {
    constexpr std::uint32_t huge = 0xFFFFFFFF;
    const struct {
        const char* what;
        std::size_t at;
        std::uint32_t number;
    } cases[] = {
        {"no program", 0, 0x4D5B},
        {"PE outside", Image::PeOffset, huge},
        {"no PE", Image::Pe, 0x4551},
        {"no sections", Image::SectionCount, 0},
        {"short optional header", Image::OptionalSize, 100},
        {"optional header outside", Image::OptionalSize, 0xFFFF},
        {"unknown width", Image::Optional, 0x107},
        {"two directories", Image::Optional + 92, 2},
        {"resources nowhere", Image::Optional + 112, 0x9000},
        {"no resources", Image::Optional + 112, 0},
        {"section outside", Image::Sections + 40 + 20, huge},
        {"empty section", Image::Sections + 40 + 16, 0},
        {"no entries", Image::Resources + 14, 0},
        {"more entries than bytes", Image::Resources + 14, 0xFFFF0000},
        {"no version", Image::Resources + 24, 17},
        {"type leads to data", Image::Resources + 28, 0x80},
        {"type leads outside", Image::Resources + 28, huge},
        {"name leads to itself", Image::Resources + 0x54, Image::High + 0x40},
        {"language leads to the top", Image::Resources + 0x74, Image::High},
        {"data outside", Image::Data, huge},
        {"no data", Image::Data + 4, 0},
        {"another key", Image::Block + 6, 'W'},
        {"another signature", Image::Fixed, 0},
    };
    for (const auto& c : cases) {
        Image image(Sample);
        image.Put32(c.at, c.number);
        EXPECT_EQ(VersionOfImage(image.bytes), std::nullopt) << c.what;
    }
    const std::string whole = Image(Sample).bytes;
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(VersionOfImage(whole.substr(0, size)), std::nullopt) << size;
}

TEST(FileVersion, AFileIsFoundInAnyCaseAndAMissingOneHasNone) {
    const test::TempFolder folder;
    const auto files = NativeFiles();
    std::filesystem::create_directory(folder.Path("System32"));
    folder.Put("System32/VISA32.DLL", Image({1, 2, 3, 4}).bytes);
    folder.Put("System32/visa32.dll", Image(Sample).bytes);
    folder.Put("System32/Hxb.dll", "");
    folder.Put("System32/hxA.DLL", "");
    folder.Put("System32/hx.ocx", "");
    const struct {
        const char* name;
        std::optional<std::string> version;
    } cases[] = {{"System32/visa32.dll", "5.1.2600.65535"},
                 {"system32/VISA32.DLL", "1.2.3.4"},
                 {"SYSTEM32/Visa32.dll", "1.2.3.4"},  // the first by its bytes
                 {"System32", ""},                    // a folder
                 {"System32/none.dll", std::nullopt},
                 {"none/visa32.dll", std::nullopt}};
    for (const auto& c : cases) {
        const auto found = FindPath(*files, folder.Path(c.name));
        const auto version = found ? std::optional(FileVersion(*files, *found)) : std::nullopt;
        EXPECT_EQ(version, c.version) << c.name;
    }
    EXPECT_EQ(FindPath(*files, "visa32.dll"), std::nullopt);
    EXPECT_EQ(NamesLike(*files, folder.Path("system32"), "hx", ".dll"),
              (std::vector<std::string>{"hxA.DLL", "Hxb.dll"}));
}

TEST(WindowsVersion, HasANameOrGoesByItsNumber) {
    using Family = WindowsVersion::Family;
    const std::string pack("Service Pack 4\0rest", 19);
    const struct {
        WindowsVersion version;
        std::string name;
    } cases[] = {
        {{Family::Windows9x, 4, 0, 950, " B"}, "Windows 95,  B, build 950"},
        {{Family::Windows9x, 4, 10, 2222, "A"}, "Windows 98, A, build 2222"},
        {{Family::Windows9x, 4, 90, 3000, ""}, "Windows Me, , build 3000"},
        {{Family::Windows9x, 4, 3, 1, ""}, "Windows 4.3, , build 1"},
        {{Family::Nt, 4, 0, 1381, pack}, "Windows NT 4.0, Service Pack 4, build 1381"},
        {{Family::Nt, 5, 0, 2195, pack}, "Windows 2000, Service Pack 4, build 2195"},
        {{Family::Nt, 5, 1, 2600, ""}, "Windows XP / .NET Server, , build 2600"},
        {{Family::Nt, 3, 51, 1057, ""}, "Windows NT 3.51, , build 1057"},
        {{Family::Nt, 5, 2, 3790, ""}, "Windows NT 5.2, , build 3790"},
        {{Family::Other, 3, 1, 0, "x"}, "Win32s on Windows 3.1"},
    };
    for (const auto& c : cases) EXPECT_EQ(WindowsName(c.version), c.name);
}

}  // namespace kelvra::platform
