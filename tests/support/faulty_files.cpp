// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/faulty_files.h"

#include <cstdlib>

namespace kelvra::test {

void FaultyFiles::Plan(int operation, Fault fault, std::error_code error) {
    operations_ = 0;
    faultAt_ = operation;
    fault_ = fault;
    error_ = error;
}

FaultyFiles::Fault FaultyFiles::Next() {
    return ++operations_ == faultAt_ ? fault_ : Fault::None;
}

template <typename Operation>
std::error_code FaultyFiles::Run(Operation operation) {
    const Fault fault = Next();
    if (fault == Fault::Stop) std::_Exit(StopStatus);
    return fault == Fault::Fail ? error_ : operation();
}

std::error_code FaultyFiles::Open(const std::string& path, Mode mode, Handle& handle) {
    return Run([&] { return inner_.Open(path, mode, handle); });
}

std::error_code FaultyFiles::Read(Handle handle, char* bytes, std::size_t size, std::size_t& read) {
    // At least one byte: none would be the end of the file.
    const std::size_t asked =
        operations_ + 1 == faultAt_ && fault_ == Fault::Short && size > 1 ? size / 2 : size;
    return Run([&] { return inner_.Read(handle, bytes, asked, read); });
}

std::error_code FaultyFiles::Write(Handle handle, std::string_view bytes, std::size_t& written) {
    const Fault fault = Next();
    if (fault == Fault::Fail) return error_;
    if (fault == Fault::None) return inner_.Write(handle, bytes, written);
    const auto error = inner_.Write(handle, bytes.substr(0, (bytes.size() + 1) / 2), written);
    if (fault == Fault::Stop) std::_Exit(StopStatus);
    return error;
}

std::error_code FaultyFiles::Sync(Handle handle) {
    return Run([&] { return inner_.Sync(handle); });
}

std::error_code FaultyFiles::Close(Handle handle) {
    const Fault fault = Next();
    if (fault == Fault::Stop) std::_Exit(StopStatus);
    const auto error = inner_.Close(handle);
    return fault == Fault::Fail ? error_ : error;
}

std::error_code FaultyFiles::Rename(const std::string& from, const std::string& to) {
    return Run([&] { return inner_.Rename(from, to); });
}

std::error_code FaultyFiles::Remove(const std::string& path) {
    return Run([&] { return inner_.Remove(path); });
}

std::error_code FaultyFiles::SyncFolderOf(const std::string& path) {
    return Run([&] { return inner_.SyncFolderOf(path); });
}

std::error_code FaultyFiles::CopyPermissions(const std::string& from, Handle to) {
    return Run([&] { return inner_.CopyPermissions(from, to); });
}

std::error_code FaultyFiles::MakeFolders(const std::string& path) {
    return Run([&] { return inner_.MakeFolders(path); });
}

}  // namespace kelvra::test
