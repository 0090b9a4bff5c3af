// SPDX-License-Identifier: GPL-3.0-or-later
// Whole files over the single operations of Files: read all, replace all or nothing, append.
#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "platform/files.h"

namespace kelvra::platform {

// Far more than any settings file has. Keeps a wrong file, or a device that never ends, from
// filling the memory.
constexpr std::size_t LargestFile = std::size_t{16} << 20;

// All bytes of the file, none after an error. A missing file is an error
// (no_such_file_or_directory) like any other; one above LargestFile is file_too_large, and is
// not read.
std::error_code ReadWholeFile(Files& files, const std::string& path, std::string& bytes);

// The file holds the old bytes or the new ones, whole, whenever and wherever this stops: they are
// written to a temporary file beside it, synced, and renamed over it. An error leaves the old file
// and no temporary one. Links are followed, permissions kept, a read-only file is refused. After a
// power cut right behind it the old file may be back, whole: the folder is not synced, which would
// double the time.
std::error_code ReplaceFile(Files& files, const std::string& path, std::string_view bytes);

// The files that ReplaceFile has left in the folder when the program was ended in the middle of it.
// Nobody may be replacing a file there now. What can't be removed stays for the next time.
void RemoveLeftovers(Files& files, const std::string& folder);

// Opens, appends and closes; makes a missing file. An error may leave a part of the bytes.
std::error_code AppendToFile(Files& files, const std::string& path, std::string_view bytes);

}  // namespace kelvra::platform
