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
    if (!text_.Changed()) return {};
    const std::string bytes = text_.Bytes();
    if (bytes.size() > LargestFile) return make_error_code(std::errc::file_too_large);
    return ReplaceFile(files_, path_, bytes);
}

}  // namespace kelvra::platform
