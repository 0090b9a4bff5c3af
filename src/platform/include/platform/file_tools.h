// SPDX-License-Identifier: GPL-3.0-or-later
// Whole files over the single operations of Files: read everything, replace all or nothing, append.
#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "platform/files.h"

namespace kelvra::platform {

// Far above the size of any settings file. Keeps a wrong file, or a device that never ends, from
// filling the memory.
constexpr std::size_t LargestFile = std::size_t{16} << 20;

// All bytes of the file; none after an error. A missing file is an error
// (no_such_file_or_directory). A file with more bytes than `largest` is not read (file_too_large).
std::error_code ReadWholeFile(Files& files, const std::string& path, std::string& bytes,
                              std::size_t largest = LargestFile);

// Leaves either the old bytes or the new ones in the file, whole, wherever it is interrupted: the
// bytes go to a temporary file beside it, which is synced and renamed over it. An error leaves the
// old file and no temporary one. Links are followed, permissions kept, and a read-only file is
// refused. After a power cut right afterwards the old file may be back: the folder is not synced,
// which would double the time.
std::error_code ReplaceFile(Files& files, const std::string& path, std::string_view bytes);

// Removes the temporary files of ReplaceFile in the folder that an interrupted program has left. No
// program may be replacing a file there meanwhile. A file that can't be removed stays until the
// next time.
void RemoveLeftovers(Files& files, const std::string& folder);

// Opens, appends and closes; makes a missing file. An error may leave a part of the bytes.
std::error_code AppendToFile(Files& files, const std::string& path, std::string_view bytes);

}  // namespace kelvra::platform
