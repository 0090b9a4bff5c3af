// SPDX-License-Identifier: GPL-3.0-or-later
// Looking for files as Windows does: upper and lower case don't matter.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace kelvra::platform {

// The absolute path as it is written in the file system; nothing if there is no such file or
// folder. Of several names that differ only in case, the one that is written alike is taken, else
// the first in the order of bytes.
std::optional<std::string> FindPath(Files& files, const std::string& path);

// Names of the folder's entries that begin with `start` and end with `end`, sorted without regard
// to case. None if there is no such folder, or its path is not absolute.
std::vector<std::string> NamesLike(Files& files, const std::string& folder, std::string_view start,
                                   std::string_view end);

}  // namespace kelvra::platform
