// SPDX-License-Identifier: GPL-3.0-or-later
// A profile file (INI file) on disk: loaded once, saved once. A missing file reads as empty and is
// no error. Any other failure to read is kept, and refuses a later save: a file that could not be
// read is never overwritten. ProfileText interprets the lines.
#pragma once

#include <string>
#include <system_error>

#include "platform/files.h"
#include "platform/profile_text.h"

namespace kelvra::platform {

class ProfileFile {
public:
    ProfileFile(Files& files, std::string path);

    ProfileText& Text() { return text_; }
    const std::error_code& LoadError() const { return loadError_; }

    // Replaces the file if the text has changed. Refuses a text above LargestFile, which could not
    // be read again.
    std::error_code Save();

private:
    Files& files_;
    std::string path_;
    std::error_code loadError_;
    ProfileText text_;
};

}  // namespace kelvra::platform
