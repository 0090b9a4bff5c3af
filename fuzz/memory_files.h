// SPDX-License-Identifier: GPL-3.0-or-later
// Files that exist only in memory, so that a fuzzed program can write anywhere.
#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "platform/files.h"

namespace kelvra::fuzz {

class MemoryFiles final : public platform::Files {
public:
    std::map<std::string, std::string> bytes;  // by path

    std::error_code Open(const std::string& path, Mode mode, Handle& handle) override {
        const bool there = Exists(path);
        if (mode == Mode::Read && !there) return Error(std::errc::no_such_file_or_directory);
        if (mode == Mode::Create && there) return Error(std::errc::file_exists);
        if (mode != Mode::Read) bytes[path];
        handle = ++lastHandle_;
        open_[handle] = {path, 0};
        return {};
    }
    std::error_code Read(Handle handle, char* to, std::size_t size, std::size_t& read) override {
        OpenFile& file = open_.at(handle);
        read = bytes[file.path].copy(to, size, file.position);
        file.position += read;
        return {};
    }
    std::error_code Write(Handle handle, std::string_view from, std::size_t& written) override {
        bytes[open_.at(handle).path].append(from);
        written = from.size();
        return {};
    }
    std::error_code Sync(Handle) override { return {}; }
    std::error_code Close(Handle handle) override {
        open_.erase(handle);
        return {};
    }
    std::error_code Rename(const std::string& from, const std::string& to) override {
        if (from != to) bytes[to] = std::move(bytes.extract(from).mapped());
        return {};
    }
    std::error_code Remove(const std::string& path) override {
        bytes.erase(path);
        return {};
    }
    std::error_code CopyPermissions(const std::string&, Handle) override { return {}; }
    std::error_code List(const std::string&, std::vector<std::string>& names) override {
        for (const auto& [path, content] : bytes) names.push_back(path);
        return {};
    }
    std::error_code Lock(const std::string&, LockKind, Handle& handle) override {
        handle = ++lastHandle_;
        return {};
    }
    void Unlock(Handle) override {}
    std::optional<std::uint64_t> Size(const std::string& path) override {
        const auto file = bytes.find(path);
        if (file == bytes.end()) return std::nullopt;
        return file->second.size();
    }
    std::error_code Resize(const std::string& path, std::uint64_t size) override {
        bytes[path].resize(size);
        return {};
    }
    std::optional<std::uint64_t> FreeSpace(const std::string&) override { return std::nullopt; }
    std::string ResolveLinks(const std::string& path) override { return path; }
    bool Exists(const std::string& path) override { return bytes.contains(path); }
    bool Writable(const std::string&) override { return true; }
    std::error_code MakeFolders(const std::string&) override { return {}; }
    std::optional<platform::LocalTime> ModifiedAt(const std::string&) override {
        return std::nullopt;
    }

private:
    struct OpenFile {
        std::string path;
        std::size_t position = 0;
    };

    static std::error_code Error(std::errc error) { return make_error_code(error); }

    std::map<Handle, OpenFile> open_;
    Handle lastHandle_ = 0;
};

}  // namespace kelvra::fuzz
