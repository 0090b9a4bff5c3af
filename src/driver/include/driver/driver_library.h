// SPDX-License-Identifier: GPL-3.0-or-later
// The two driver libraries in this process: loaded by name, their functions found by the
// operations' names. A missing library or function is no error here: it is logged, and the calls
// fail.
#pragma once

#include <memory>

#include "driver/debug_log.h"
#include "driver/operations.h"
#include "platform/computer.h"

namespace kelvra::driver {

class DriverLibrary {
public:
    void Load(platform::Computer& computer, DebugLog& log);

    InstrumentOperations instrument;
    DeviceListOperations deviceList;

private:
    std::unique_ptr<platform::Library> instrumentLibrary_;
    std::unique_ptr<platform::Library> deviceListLibrary_;
};

// Why a call was a missing function, as text for the user.
std::string MissingText(const OperationList& operations, const OperationBase& missing);

// Where the library is and which functions it lacks, or why it is not there: for a report.
std::string LibraryState(const OperationList& operations);

}  // namespace kelvra::driver
