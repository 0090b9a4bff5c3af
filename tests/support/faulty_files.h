// SPDX-License-Identifier: GPL-3.0-or-later
// Files that hand every operation on to others, but let the n-th one fail, be short, or be the last
// one of the process, as a power cut would have it. Only operations that can fail count; questions
// (Exists, Writable, ResolveLinks, Size, FreeSpace, ModifiedAt) don't.
#pragma once

#include <cstdlib>

#include "platform/files.h"

namespace kelvra::test {

class FaultyFiles final : public platform::Files {
public:
    enum class Fault {
        None,
        Fail,   // the error instead of the operation; a file is closed all the same
        Short,  // a read or write does half of its bytes, others are not concerned
        Stop,   // the process ends with StopStatus; half of a write is done by then
    };
    static constexpr int StopStatus = 86;
    using Error = std::error_code;
    using Path = const std::string&;

    explicit FaultyFiles(Files& inner) : inner_(inner) {}

    std::optional<std::uint64_t> freeSpace;  // instead of the disk's

    // At the operation of this number, counted from 1 and from now.
    void Plan(int operation, Fault fault,
              Error error = make_error_code(std::errc::no_space_on_device)) {
        operations_ = 0;
        faultAt_ = operation;
        fault_ = fault;
        error_ = error;
    }
    // How many there were since then.
    int Operations() const { return operations_; }

    Error Open(Path path, Mode mode, Handle& handle) override {
        return Run([&] { return inner_.Open(path, mode, handle); });
    }
    Error Read(Handle handle, char* bytes, std::size_t size, std::size_t& got) override {
        // At least one byte: none would be the end of the file.
        const std::size_t asked = IsNext(Fault::Short) && size > 1 ? size / 2 : size;
        return Run([&] { return inner_.Read(handle, bytes, asked, got); });
    }
    Error Write(Handle handle, std::string_view bytes, std::size_t& written) override {
        if (IsNext(Fault::Short) || IsNext(Fault::Stop)) bytes.remove_suffix(bytes.size() / 2);
        if (IsNext(Fault::Stop)) inner_.Write(handle, bytes, written);
        return Run([&] { return inner_.Write(handle, bytes, written); });
    }
    Error Close(Handle handle) override {
        if (IsNext(Fault::Fail)) inner_.Close(handle);
        return Run([&] { return inner_.Close(handle); });
    }
    Error CopyPermissions(Path from, Handle to) override {
        return Run([&] { return inner_.CopyPermissions(from, to); });
    }
    Error List(Path folder, std::vector<std::string>& names) override {
        return Run([&] { return inner_.List(folder, names); });
    }
    Error Lock(Path path, LockKind kind, Handle& handle) override {
        return Run([&] { return inner_.Lock(path, kind, handle); });
    }
    void Unlock(Handle handle) override { inner_.Unlock(handle); }
    // clang-format off
    Error Sync(Handle h) override { return Run([&] { return inner_.Sync(h); }); }
    Error Rename(Path old, Path to) override { return Run([&] { return inner_.Rename(old, to); }); }
    Error Remove(Path path) override { return Run([&] { return inner_.Remove(path); }); }
    Error MakeFolders(Path path) override { return Run([&] { return inner_.MakeFolders(path); }); }
    // clang-format on
    Error Resize(Path path, std::uint64_t size) override {
        return Run([&] { return inner_.Resize(path, size); });
    }
    std::optional<std::uint64_t> FreeSpace(Path path) override {
        return freeSpace ? freeSpace : inner_.FreeSpace(path);
    }
    std::optional<std::uint64_t> Size(Path path) override { return inner_.Size(path); }
    std::string ResolveLinks(Path path) override { return inner_.ResolveLinks(path); }
    bool Exists(Path path) override { return inner_.Exists(path); }
    bool Writable(Path path) override { return inner_.Writable(path); }
    std::optional<platform::LocalTime> ModifiedAt(Path p) override { return inner_.ModifiedAt(p); }

private:
    bool IsNext(Fault fault) const { return operations_ + 1 == faultAt_ && fault_ == fault; }
    template <typename Operation>
    Error Run(Operation operation) {
        const bool fails = IsNext(Fault::Fail);
        if (IsNext(Fault::Stop)) std::_Exit(StopStatus);
        ++operations_;
        return fails ? error_ : operation();
    }

    Files& inner_;
    int operations_ = 0;
    int faultAt_ = 0;
    Fault fault_ = Fault::None;
    Error error_;
};

}  // namespace kelvra::test
