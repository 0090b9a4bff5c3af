// SPDX-License-Identifier: GPL-3.0-or-later
// The version of a program or library for Windows, read from the version resource in its file. The
// file may be looked at on any system.
// Format: Microsoft, "PE Format", sections "Optional Header" and "The .rsrc Section"; Win32 API,
// VS_VERSIONINFO and VS_FIXEDFILEINFO.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace kelvra::platform {

// A larger file reads as one without a version.
constexpr std::size_t LargestImage = std::size_t{64} << 20;

// "5.1.2600.0": the fixed file version of an image of 32 or 64 bits, major.minor.build.revision.
// Nothing if these bytes are no image, are damaged, or have no version.
std::optional<std::string> VersionOfImage(std::string_view image);

// The same of a file; empty without one.
std::string FileVersion(Files& files, const std::string& path);

}  // namespace kelvra::platform
