// SPDX-License-Identifier: GPL-3.0-or-later
// The few file operations that Kelvra needs, one virtual function each, so that a test can make the
// n-th one fail, fall short, or stop the program. Whole-file work is in file_tools.h.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace kelvra::platform {

// Local time, to the millisecond.
struct LocalTime {
    int year = 1970, month = 1, day = 1;  // month and day from 1
    int hour = 0, minute = 0, second = 0, ms = 0;
    int utcOffset = 0;  // minutes east of UTC, summer time included

    double SecondsSinceMidnight() const {
        return hour * 3600.0 + minute * 60.0 + second + ms / 1000.0;
    }
};

class Files {
public:
    enum class Mode {
        Read,
        Create,
        Append
    };  // Create: must not exist yet; Append: made if missing

    enum class LockKind { Exclusive, Shared };

    // An open file or folder; -1 is none.
    using Handle = int;

    virtual ~Files() = default;

    virtual std::error_code Open(const std::string& path, Mode mode, Handle& handle) = 0;
    // Up to `size` bytes; 0 at the end of the file.
    virtual std::error_code Read(Handle handle, char* bytes, std::size_t size,
                                 std::size_t& read) = 0;
    // May write fewer bytes than there are.
    virtual std::error_code Write(Handle handle, std::string_view bytes, std::size_t& written) = 0;
    virtual std::error_code Sync(Handle handle) = 0;
    virtual std::error_code Close(Handle handle) = 0;
    virtual std::error_code Rename(const std::string& from, const std::string& to) = 0;
    virtual std::error_code Remove(const std::string& path) = 0;
    // The new file gets the permissions of the old one.
    virtual std::error_code CopyPermissions(const std::string& from, Handle to) = 0;
    // Names of the folder's entries, in no particular order.
    virtual std::error_code List(const std::string& folder, std::vector<std::string>& names) = 0;
    // Opens the file, creating it if missing, and locks it without waiting:
    // resource_unavailable_try_again when another lock excludes this one. The lock ends with Unlock
    // or with the process.
    virtual std::error_code Lock(const std::string& path, LockKind kind, Handle& handle) = 0;
    virtual void Unlock(Handle handle) = 0;
    // The file at the end of a chain of links; the path itself if it is no link.
    virtual std::string ResolveLinks(const std::string& path) = 0;
    virtual bool Exists(const std::string& path) = 0;
    // Whether the file is there and may be written.
    virtual bool Writable(const std::string& path) = 0;
    virtual std::error_code MakeFolders(const std::string& path) = 0;
    // In bytes; nothing for a missing file.
    virtual std::optional<std::uint64_t> Size(const std::string& path) = 0;
    // Cuts the file to that size; a smaller file grows.
    virtual std::error_code Resize(const std::string& path, std::uint64_t size) = 0;
    // Bytes that this user can still write on the volume of the path; nothing if it can't be asked.
    virtual std::optional<std::uint64_t> FreeSpace(const std::string& path) = 0;
    // Local time of the last change; nothing for a missing file.
    virtual std::optional<LocalTime> ModifiedAt(const std::string& path) = 0;
};

}  // namespace kelvra::platform
