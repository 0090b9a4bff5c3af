// SPDX-License-Identifier: GPL-3.0-or-later
// Files that hand every operation on to others, but let the n-th one fail, be short, or be the last
// one of the process, as a power cut would have it. Only operations that can fail count; questions
// (Exists, Writable, ResolveLinks, ModifiedAt) don't.
#pragma once

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

    explicit FaultyFiles(Files& inner) : inner_(inner) {}

    // At the operation of this number, counted from 1 and from now.
    void Plan(int operation, Fault fault,
              std::error_code error = make_error_code(std::errc::no_space_on_device));
    // How many there were since then.
    int Operations() const { return operations_; }

    std::error_code Open(const std::string& path, Mode mode, Handle& handle) override;
    std::error_code Read(Handle handle, char* bytes, std::size_t size, std::size_t& read) override;
    std::error_code Write(Handle handle, std::string_view bytes, std::size_t& written) override;
    std::error_code Sync(Handle handle) override;
    std::error_code Close(Handle handle) override;
    std::error_code Rename(const std::string& from, const std::string& to) override;
    std::error_code Remove(const std::string& path) override;
    std::error_code SyncFolderOf(const std::string& path) override;
    std::error_code CopyPermissions(const std::string& from, Handle to) override;
    std::error_code MakeFolders(const std::string& path) override;

    std::string ResolveLinks(const std::string& path) override { return inner_.ResolveLinks(path); }
    bool Exists(const std::string& path) override { return inner_.Exists(path); }
    bool Writable(const std::string& path) override { return inner_.Writable(path); }
    std::optional<platform::LocalTime> ModifiedAt(const std::string& path) override {
        return inner_.ModifiedAt(path);
    }

private:
    Fault Next();  // counts, and says what is to happen now
    template <typename Operation>
    std::error_code Run(Operation operation);

    Files& inner_;
    int operations_ = 0;
    int faultAt_ = 0;
    Fault fault_ = Fault::None;
    std::error_code error_;
};

}  // namespace kelvra::test
