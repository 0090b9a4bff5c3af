// SPDX-License-Identifier: GPL-3.0-or-later
// The file operations as system calls, each repeated when a signal interrupts it.
#pragma once

#include "platform/files.h"

namespace kelvra::platform {

class PosixFiles final : public Files {
public:
    std::error_code Open(const std::string& path, Mode mode, Handle& handle) override;
    std::error_code Read(Handle handle, char* bytes, std::size_t size, std::size_t& read) override;
    std::error_code Write(Handle handle, std::string_view bytes, std::size_t& written) override;
    std::error_code Sync(Handle handle) override;
    std::error_code Close(Handle handle) override;
    std::error_code Rename(const std::string& from, const std::string& to) override;
    std::error_code Remove(const std::string& path) override;
    // Group and owner too, as far as the user may set them.
    std::error_code CopyPermissions(const std::string& from, Handle to) override;
    std::error_code List(const std::string& folder, std::vector<std::string>& names) override;
    std::error_code Lock(const std::string& path, LockKind kind, Handle& handle) override;
    void Unlock(Handle handle) override;
    std::string ResolveLinks(const std::string& path) override;
    bool Exists(const std::string& path) override;
    // A file without any write permission is read-only for everybody, the superuser included.
    bool Writable(const std::string& path) override;
    std::error_code MakeFolders(const std::string& path) override;
    std::optional<std::uint64_t> Size(const std::string& path) override;
    std::error_code Resize(const std::string& path, std::uint64_t size) override;
    std::optional<std::uint64_t> FreeSpace(const std::string& path) override;
    std::optional<LocalTime> ModifiedAt(const std::string& path) override;
};

}  // namespace kelvra::platform
