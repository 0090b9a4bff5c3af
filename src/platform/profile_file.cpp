// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/profile_file.h"

#include <utility>

#include "platform/file_tools.h"

namespace kelvra::platform {

ProfileFile::ProfileFile(Files& files, std::string path) : files_(files), path_(std::move(path)) {
    std::string bytes;
    loadError_ = ReadWholeFile(files_, path_, bytes);
    if (loadError_ == std::errc::no_such_file_or_directory) loadError_.clear();
    text_ = ProfileText(std::move(bytes));
}

std::error_code ProfileFile::Save() {
    if (loadError_) return loadError_;
    return text_.Changed() ? ReplaceFile(files_, path_, text_.Bytes()) : std::error_code();
}

}  // namespace kelvra::platform
