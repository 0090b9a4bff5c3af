// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/driver_library.h"

#include <utility>

namespace kelvra::driver {

namespace {

std::unique_ptr<platform::Library> LoadOne(platform::Computer& computer, DebugLog& log,
                                           const char* name, OperationList& operations) {
    platform::LoadedLibrary loaded = computer.LoadDriverLibrary(name);
    operations.libraryFile = loaded.fileName;
    operations.libraryPath = loaded.path;
    operations.libraryLoaded = loaded.library != nullptr;
    operations.whyNotLoaded = loaded.why;
    if (!loaded.library) {
        log.Write("Driver library " + loaded.fileName + " was not loaded: " + loaded.why);
        return nullptr;
    }
    for (OperationBase* operation : operations.all) {
        operation->address = loaded.library->Find(operation->name);
        if (operation->address == nullptr)
            log.Write("Driver library " + loaded.fileName + " has no function " + operation->name);
    }
    return std::move(loaded.library);
}

}  // namespace

void DriverLibrary::Load(platform::Computer& computer, DebugLog& log) {
    instrumentLibrary_ = LoadOne(computer, log, "psdrv_32", instrument);
    deviceListLibrary_ = LoadOne(computer, log, "TeskControl2", deviceList);
}

std::string MissingText(const OperationList& operations, const OperationBase& missing) {
    if (!operations.libraryLoaded)
        return "The driver library " + operations.libraryFile +
               " could not be loaded: " + operations.whyNotLoaded;
    return "The driver library " + operations.libraryFile + " has no function " + missing.name +
           ".";
}

std::string LibraryState(const OperationList& operations) {
    if (!operations.libraryLoaded) return operations.libraryFile + ": " + operations.whyNotLoaded;
    std::string state = operations.libraryPath;
    const char* before = ", without ";
    for (const OperationBase* operation : operations.all) {
        if (operation->address != nullptr) continue;
        state.append(before).append(operation->name);
        before = ", ";
    }
    return state;
}

}  // namespace kelvra::driver
