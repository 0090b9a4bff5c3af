// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/windows_version.h"

#include <algorithm>
#include <iterator>

#include "util/number_text.h"

namespace kelvra::platform {

namespace {

using Family = WindowsVersion::Family;

constexpr int Any = -1;

struct Row {
    Family family{};
    int major = Any, minor = 0;
    const char* name = "";
};

// The first row that fits.
constexpr Row Names[] = {
    {Family::Windows9x, Any, 0, "Windows 95"},  {Family::Windows9x, Any, 10, "Windows 98"},
    {Family::Windows9x, Any, 90, "Windows Me"}, {Family::Nt, 4, 0, "Windows NT 4.0"},
    {Family::Nt, 5, 0, "Windows 2000"},         {Family::Nt, Any, 1, "Windows XP / .NET Server"},
    {Family::Nt, Any, 51, "Windows NT 3.51"},
};

std::string NameAlone(const WindowsVersion& version) {
    const auto* found = std::find_if(std::begin(Names), std::end(Names), [&](const Row& row) {
        return row.family == version.family && row.minor == version.minor &&
               (row.major == Any || row.major == version.major);
    });
    if (found != std::end(Names)) return found->name;
    return std::string(version.family == Family::Nt ? "Windows NT " : "Windows ") +
           util::TrimmedNumberText(version.major) + "." + util::TrimmedNumberText(version.minor);
}

}  // namespace

std::string WindowsName(const WindowsVersion& version) {
    if (version.family == Family::Other) return "Win32s on Windows 3.1";
    return NameAlone(version) + ", " +
           version.servicePack.substr(0, version.servicePack.find('\0')) + ", build " +
           util::TrimmedNumberText(version.build);
}

}  // namespace kelvra::platform
