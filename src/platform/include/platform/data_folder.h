// SPDX-License-Identifier: GPL-3.0-or-later
// The folder of Kelvra's own files, which several Kelvras may use at once. A program that changes a
// file there holds one lock from reading the file to replacing it. A program that uses the folder
// holds another lock, which shows the others that it is there. Both locks end with the process.
#pragma once

#include <string>
#include <system_error>

#include "platform/files.h"

namespace kelvra::platform {

// Held while files of the folder are changed, by one program at a time. Waits up to 2 s for others.
class FolderLock {
public:
    FolderLock(Files& files, const std::string& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

    // Why the lock is not held. No error on a file system without locks, where nothing is
    // protected.
    const std::error_code& Error() const { return error_; }

private:
    Files& files_;
    Files::Handle handle_ = -1;
    std::error_code error_;
};

// Shows other programs that this one uses the folder, from Begin until the object is destroyed.
class FolderUse {
public:
    explicit FolderUse(Files& files) : files_(files) {}
    ~FolderUse() { End(); }
    FolderUse(const FolderUse&) = delete;
    FolderUse& operator=(const FolderUse&) = delete;

    // Call once. Removes what killed programs have left in the folder, and looks for other
    // programs.
    void Begin(std::string folder);
    void LookAgain();
    // Results of the last look: whether another program uses the folder, and any failure.
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
