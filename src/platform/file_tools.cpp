// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/file_tools.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <filesystem>

#include "util/text.h"

namespace kelvra::platform {

namespace {

constexpr std::string_view TemporaryPrefix = "kelvra-";
constexpr std::string_view TemporarySuffix = ".tmp";

constexpr std::size_t ChunkSize = std::size_t{64} << 10;

std::error_code ReadAll(Files& files, Files::Handle handle, std::string& bytes,
                        std::size_t largest) {
    std::string chunk(ChunkSize, '\0');
    for (;;) {
        std::size_t read = 0;
        if (const auto error = files.Read(handle, chunk.data(), chunk.size(), read)) return error;
        if (read == 0) return {};
        if (read > largest - bytes.size()) return make_error_code(std::errc::file_too_large);
        bytes.append(chunk, 0, read);
    }
}

std::error_code WriteAll(Files& files, Files::Handle handle, std::string_view bytes) {
    while (!bytes.empty()) {
        std::size_t written = 0;
        if (const auto error = files.Write(handle, bytes, written)) return error;
        // A device that takes no bytes and reports no error would keep this loop running.
        if (written == 0) return make_error_code(std::errc::io_error);
        bytes.remove_prefix(written);
    }
    return {};
}

// Closes the file after work that ended with `error`; the first of the two errors counts.
std::error_code CloseAfter(std::error_code error, Files& files, Files::Handle handle) {
    const auto closing = files.Close(handle);
    return error ? error : closing;
}

// Creates a new file beside the target. Its name does not contain the target's, which may be as
// long as a name can be. It comes from the time, so that files left by a crash don't use up the
// names.
std::error_code CreateBeside(Files& files, const std::string& target, std::string& path,
                             Files::Handle& handle) {
    constexpr int attempts = 16;
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    std::error_code error;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const auto number = static_cast<std::uint32_t>(ticks + attempt);
        std::string name(TemporaryPrefix);
        name.append(util::HexText(number)).append(TemporarySuffix);
        path = std::filesystem::path(target).replace_filename(name).string();
        error = files.Open(path, Files::Mode::Create, handle);
        if (error != std::errc::file_exists) break;
    }
    return error;
}

// Whether CreateBeside could have made this name.
bool IsTemporary(std::string_view name) {
    if (!name.starts_with(TemporaryPrefix) || !name.ends_with(TemporarySuffix)) return false;
    name.remove_prefix(TemporaryPrefix.size());
    name.remove_suffix(std::min(TemporarySuffix.size(), name.size()));
    return !name.empty() && name.size() <= 8 &&
           name.find_first_not_of("0123456789ABCDEF") == std::string_view::npos;
}

// Permissions come first, so that a private file is never readable by others.
std::error_code Fill(Files& files, Files::Handle handle, const std::string& old,
                     std::string_view bytes) {
    if (files.Exists(old))
        if (const auto error = files.CopyPermissions(old, handle)) return error;
    if (const auto error = WriteAll(files, handle, bytes)) return error;
    return files.Sync(handle);
}

}  // namespace

std::error_code ReadWholeFile(Files& files, const std::string& path, std::string& bytes,
                              std::size_t largest) {
    bytes.clear();
    if (files.Size(path) > largest) return make_error_code(std::errc::file_too_large);
    Files::Handle handle = -1;
    if (const auto error = files.Open(path, Files::Mode::Read, handle)) return error;
    const auto error = CloseAfter(ReadAll(files, handle, bytes, largest), files, handle);
    if (error) bytes.clear();
    return error;
}

std::error_code ReplaceFile(Files& files, const std::string& path, std::string_view bytes) {
    const std::string target = files.ResolveLinks(path);
    if (files.Exists(target) && !files.Writable(target))
        return make_error_code(std::errc::permission_denied);

    std::string temporary;
    Files::Handle handle = -1;
    if (const auto error = CreateBeside(files, target, temporary, handle)) return error;

    auto error = CloseAfter(Fill(files, handle, target, bytes), files, handle);
    if (!error) error = files.Rename(temporary, target);
    // Reports the error that led here, even if the removal fails as well.
    if (error) files.Remove(temporary);
    return error;
}

void RemoveLeftovers(Files& files, const std::string& folder) {
    std::vector<std::string> names;
    if (files.List(folder, names)) return;
    for (const std::string& name : names)
        if (IsTemporary(name)) files.Remove((std::filesystem::path(folder) / name).string());
}

std::error_code AppendToFile(Files& files, const std::string& path, std::string_view bytes) {
    Files::Handle handle = -1;
    if (const auto error = files.Open(path, Files::Mode::Append, handle)) return error;
    return CloseAfter(WriteAll(files, handle, bytes), files, handle);
}

}  // namespace kelvra::platform
