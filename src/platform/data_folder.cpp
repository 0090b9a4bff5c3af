// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/data_folder.h"

#include <chrono>
#include <filesystem>
#include <thread>
#include <utility>

#include "platform/file_tools.h"

namespace kelvra::platform {

namespace {

using Steady = std::chrono::steady_clock;

// A save takes milliseconds. Real time counts even when the program has a clock of its own, because
// the other program's save takes real time.
constexpr auto Patience = std::chrono::seconds(2);
constexpr auto BetweenAttempts = std::chrono::milliseconds(5);

constexpr const char* ChangeLock = "kelvra-save.lock";
constexpr const char* UseLock = "kelvra-use.lock";

class FolderErrors final : public std::error_category {
public:
    const char* name() const noexcept override { return "data folder"; }
    std::string message(int) const override {
        return "another Kelvra is changing the files of this folder";
    }
};

std::error_code HeldByAnother() {
    static const FolderErrors Errors;
    return {1, Errors};
}

std::string In(const std::string& folder, const char* name) {
    return (std::filesystem::path(folder) / name).string();
}

bool IsTaken(const std::error_code& error) {
    return error == std::errc::resource_unavailable_try_again;
}

std::error_code LockWithin(Files& files, const std::string& path, Files::Handle& handle) {
    const auto end = Steady::now() + Patience;
    for (;;) {
        const auto error = files.Lock(path, Files::LockKind::Exclusive, handle);
        if (!IsTaken(error)) return error;
        if (Steady::now() >= end) return HeldByAnother();
        std::this_thread::sleep_for(BetweenAttempts);
    }
}

// The error, unless it only says that the file system has no locks.
std::error_code Serious(const std::error_code& error) {
    for (const std::errc lockless : {std::errc::no_lock_available, std::errc::not_supported,
                                     std::errc::function_not_supported})
        if (error == lockless) return {};
    return error;
}

}  // namespace

FolderLock::FolderLock(Files& files, const std::string& folder)
    : files_(files), error_(Serious(LockWithin(files, In(folder, ChangeLock), handle_))) {}

FolderLock::~FolderLock() {
    if (handle_ != -1) files_.Unlock(handle_);
}

void FolderUse::Begin(std::string folder) {
    folder_ = std::move(folder);
    const FolderLock lock(files_, folder_);
    if (!lock.Error()) RemoveLeftovers(files_, folder_);
    error_ = lock.Error() ? lock.Error() : Look();
}

void FolderUse::LookAgain() {
    const FolderLock lock(files_, folder_);
    error_ = lock.Error() ? lock.Error() : Look();
}

// Every program that uses the folder shares this lock, so whoever gets it exclusively is alone. The
// caller holds the folder's change lock: otherwise two programs that start at once would miss each
// other.
std::error_code FolderUse::Look() {
    End();
    const std::string path = In(folder_, UseLock);
    Files::Handle alone = -1;
    const auto error = files_.Lock(path, Files::LockKind::Exclusive, alone);
    shared_ = IsTaken(error);
    if (error && !shared_) return Serious(error);
    if (!error) files_.Unlock(alone);
    return files_.Lock(path, Files::LockKind::Shared, handle_);
}

void FolderUse::End() {
    if (handle_ != -1) files_.Unlock(std::exchange(handle_, -1));
}

}  // namespace kelvra::platform
