// SPDX-License-Identifier: GPL-3.0-or-later
#include "posix/posix_library.h"

#include <dlfcn.h>

namespace kelvra::platform {

namespace {

class PosixLibrary final : public Library {
public:
    explicit PosixLibrary(void* library) : library_(library) {}
    PosixLibrary(const PosixLibrary&) = delete;
    PosixLibrary& operator=(const PosixLibrary&) = delete;
    ~PosixLibrary() override { ::dlclose(library_); }

    void* Find(const char* name) override { return ::dlsym(library_, name); }

private:
    void* library_;
};

}  // namespace

std::unique_ptr<Library> LoadLibrary(const std::string& path, std::string& why) {
    // Resolves all symbols at once: a missing one shows here, not in the middle of a measurement.
    void* library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (library != nullptr) return std::make_unique<PosixLibrary>(library);
    const char* words = ::dlerror();
    why = words == nullptr ? path : words;
    return nullptr;
}

}  // namespace kelvra::platform
