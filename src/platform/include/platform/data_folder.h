// SPDX-License-Identifier: GPL-3.0-or-later
// The folder of Kelvra's own files, which several Kelvras may use at once. Who changes a file there
// holds a lock meanwhile, from reading it to replacing it; who uses the folder holds another one,
// by which others see it. A program that is killed holds nothing any more.
#pragma once

#include <string>
#include <system_error>

#include "platform/files.h"

namespace kelvra::platform {

// Held while files of the folder are changed, by one at a time. Waits for others, but not for ever.
class FolderLock {
public:
    FolderLock(Files& files, const std::string& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    // Why it is not held. A file system without locks is no error: there it protects nobody.
    const std::error_code& Error() const { return error_; }

private:
    Files& files_;
    Files::Handle handle_ = -1;
    std::error_code error_;
};

// That this program uses the folder, from Begin on as long as the object lives.
class FolderUse {
public:
    explicit FolderUse(Files& files) : files_(files) {}
    ~FolderUse() { End(); }
    FolderUse(const FolderUse&) = delete;
    FolderUse& operator=(const FolderUse&) = delete;

    // Once; removes what killed programs have left in the folder, and looks for others.
    void Begin(std::string folder);
    void LookAgain();
    // What the last look found: another program in the folder, or a failure.
    bool Shared() const { return shared_; }
    const std::error_code& Error() const { return error_; }

private:
    std::error_code Look();
    void End();

    Files& files_;
    std::string folder_;
    Files::Handle handle_ = -1;
    bool shared_ = false;
    std::error_code error_;
};

}  // namespace kelvra::platform
