// SPDX-License-Identifier: GPL-3.0-or-later
// The name of a version of Windows. Its numbers are what the system reports of itself; other
// systems have none.
#pragma once

#include <string>

namespace kelvra::platform {

struct WindowsVersion {
    enum class Family { Other, Windows9x, Nt };

    Family family = Family::Other;
    int major = 0, minor = 0, build = 0;
    std::string servicePack;  // up to its first NUL
};

// "Windows 2000, Service Pack 4, build 2195". A version without a name of its own goes by its
// number: "Windows NT 3.5", "Windows 4.3".
std::string WindowsName(const WindowsVersion& version);

}  // namespace kelvra::platform
