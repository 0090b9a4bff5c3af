// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/posix_files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "posix/local_time.h"

namespace kelvra::platform {

namespace {

namespace fs = std::filesystem;

std::error_code LastError() {
    return {errno, std::generic_category()};
}

// The error of a call that returns 0 or -1.
std::error_code Outcome(int result) {
    return result == 0 ? std::error_code() : LastError();
}

template <typename Call>
auto Uninterrupted(Call call) {
    auto result = call();
    while (result == -1 && errno == EINTR) result = call();
    return result;
}

int OpenFlags(Files::Mode mode) {
    switch (mode) {
        case Files::Mode::Create:
            return O_WRONLY | O_CREAT | O_EXCL;
        case Files::Mode::Append:
            return O_WRONLY | O_CREAT | O_APPEND;
        case Files::Mode::Read:
            break;
    }
    return O_RDONLY;
}

// Does not wait for somebody at the other end of a pipe.
std::error_code OpenWith(const std::string& path, int flags, Files::Handle& handle) {
    constexpr int always = O_CLOEXEC | O_NONBLOCK;
    handle = Uninterrupted([&] { return ::open(path.c_str(), flags | always, 0666); });
    return handle == -1 ? LastError() : std::error_code();
}

// For reads and writes, which return the number of bytes or -1.
std::error_code Counted(ssize_t result, std::size_t& count) {
    count = result < 0 ? 0 : static_cast<std::size_t>(result);
    return result < 0 ? LastError() : std::error_code();
}

}  // namespace

std::error_code PosixFiles::Open(const std::string& path, Mode mode, Handle& handle) {
    return OpenWith(path, OpenFlags(mode), handle);
}

std::error_code PosixFiles::Read(Handle handle, char* bytes, std::size_t size, std::size_t& read) {
    return Counted(Uninterrupted([&] { return ::read(handle, bytes, size); }), read);
}

std::error_code PosixFiles::Write(Handle handle, std::string_view bytes, std::size_t& written) {
    return Counted(Uninterrupted([&] { return ::write(handle, bytes.data(), bytes.size()); }),
                   written);
}

std::error_code PosixFiles::Sync(Handle handle) {
    return Outcome(Uninterrupted([&] { return ::fsync(handle); }));
}

std::error_code PosixFiles::Close(Handle handle) {
    // Even if interrupted, close has freed the handle: a second call might close another file.
    const auto error = Outcome(::close(handle));
    return error == std::errc::interrupted ? std::error_code() : error;
}

std::error_code PosixFiles::Rename(const std::string& from, const std::string& to) {
    return Outcome(std::rename(from.c_str(), to.c_str()));
}

std::error_code PosixFiles::Remove(const std::string& path) {
    return Outcome(::unlink(path.c_str()));
}

std::error_code PosixFiles::CopyPermissions(const std::string& from, Handle to) {
    struct stat old {};
    struct stat now {};
    if (::stat(from.c_str(), &old) != 0 || ::fstat(to, &now) != 0) return LastError();
    // Skips changes that are not needed: each makes the sync take longer.
    if (old.st_uid == now.st_uid && old.st_gid == now.st_gid && old.st_mode == now.st_mode)
        return {};
    // Before the permissions: a change of owner may reduce them.
    for (const auto& [owner, group] : {std::pair<uid_t, gid_t>(-1, old.st_gid), {old.st_uid, -1}})
        if (::fchown(to, owner, group) != 0 && errno != EPERM) return LastError();
    return Outcome(Uninterrupted([&] { return ::fchmod(to, old.st_mode & 07777); }));
}

std::error_code PosixFiles::List(const std::string& folder, std::vector<std::string>& names) {
    names.clear();
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error))
        names.push_back(entry->path().filename().string());
    return error;
}

std::error_code PosixFiles::Lock(const std::string& path, LockKind kind, Handle& handle) {
    if (const auto error = OpenWith(path, O_RDWR | O_CREAT, handle)) return error;
    const int operation = kind == LockKind::Exclusive ? LOCK_EX : LOCK_SH;
    const auto error = Outcome(Uninterrupted([&] { return ::flock(handle, operation | LOCK_NB); }));
    if (error) Unlock(std::exchange(handle, -1));
    return error;
}

// The lock file is empty, so closing it can't lose anything.
void PosixFiles::Unlock(Handle handle) {
    ::close(handle);
}

std::string PosixFiles::ResolveLinks(const std::string& path) {
    constexpr int mostLinks = 40;
    fs::path current(path);
    for (int followed = 0; followed < mostLinks; ++followed) {
        std::error_code noLink;
        const fs::path target = fs::read_symlink(current, noLink);
        if (noLink) return current.string();
        current = current.parent_path() / target;  // an absolute target replaces the folder
    }
    return path;  // too many links, or a circle of them
}

bool PosixFiles::Exists(const std::string& path) {
    struct stat file {};
    return ::stat(path.c_str(), &file) == 0;
}

bool PosixFiles::Writable(const std::string& path) {
    struct stat file {};
    return ::stat(path.c_str(), &file) == 0 && (file.st_mode & 0222) != 0 &&
           ::access(path.c_str(), S_ISDIR(file.st_mode) ? W_OK | X_OK : W_OK) == 0;
}

std::error_code PosixFiles::MakeFolders(const std::string& path) {
    std::error_code error;
    fs::create_directories(path, error);
    return error;
}

std::optional<std::uint64_t> PosixFiles::Size(const std::string& path) {
    struct stat file {};
    if (::stat(path.c_str(), &file) != 0) return std::nullopt;
    return static_cast<std::uint64_t>(file.st_size);
}

std::error_code PosixFiles::Resize(const std::string& path, std::uint64_t size) {
    std::error_code error;
    fs::resize_file(path, size, error);
    return error;
}

std::optional<std::uint64_t> PosixFiles::FreeSpace(const std::string& path) {
    std::error_code error;
    const fs::space_info space = fs::space(path, error);
    if (error) return std::nullopt;
    return space.available;
}

std::optional<LocalTime> PosixFiles::ModifiedAt(const std::string& path) {
    struct stat file {};
    if (::stat(path.c_str(), &file) != 0) return std::nullopt;
    return LocalTimeOf(file.st_mtim);
}

}  // namespace kelvra::platform
