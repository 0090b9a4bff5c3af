// SPDX-License-Identifier: GPL-3.0-or-later
// The operations of the driver libraries. Each is a member with the name of its function, by which
// it is loaded, called, and logged. They are made from operation_list.h; driver_library.h, or a
// test, connects them to the functions. On 32-bit Windows the calling convention is __stdcall.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "driver/operation_list.h"

namespace kelvra::driver {

#if defined(_WIN32) && !defined(_WIN64)
#define KELVRA_DRIVER_CALL __stdcall
#else
#define KELVRA_DRIVER_CALL
#endif

using Status = std::int32_t;   // 0: success
using Handle = std::uint32_t;  // of a session; 0: none
using Channel = std::int32_t;  // slot index + 1
using Switch = std::uint16_t;  // 0 or 1
constexpr Status MissingFunction = -1;

class OperationBase;

// How a call ended.
struct CallResult {
    Status status = 0;
    const OperationBase* missing = nullptr;  // the operation, if the library lacks its function

    bool Failed() const { return status != 0; }
};

// The operations of one library.
class OperationList {
public:
    std::vector<OperationBase*> all;
    std::string libraryFile;  // file name that was searched for
    std::string libraryPath;  // where it was found; empty if it was not
    bool libraryLoaded = false;
    std::string whyNotLoaded;
};

class OperationBase {
public:
    OperationBase(OperationList& list, const char* operationName) : name(operationName) {
        list.all.push_back(this);
    }

    const char* const name;
    void* address = nullptr;  // null: missing
};

template <class... Arguments>
class Operation : public OperationBase {
public:
    using OperationBase::OperationBase;

    CallResult operator()(Arguments... arguments) const {
        using Function = Status(KELVRA_DRIVER_CALL*)(Arguments...);
        if (address == nullptr) return {MissingFunction, this};
        return {reinterpret_cast<Function>(address)(arguments...)};
    }
};

// The operation for a function's signature: OperationFor<Status(Handle, Channel)>.
template <class Signature>
struct OperationOfSignature;
template <class... Parameters>
struct OperationOfSignature<Status(Parameters...)> {
    using Type = Operation<Parameters...>;
};
template <class Signature>
using OperationFor = typename OperationOfSignature<Signature>::Type;

// The names are the functions' own.
// NOLINTBEGIN(readability-identifier-naming,bugprone-macro-parentheses)
struct InstrumentOperations : OperationList {
#define X(name, parameters) OperationFor<Status parameters> name{*this, #name};
    KELVRA_DRIVER_FUNCTIONS(X)
#undef X
#define X(name, type) Operation<Handle, Channel, type> name{*this, #name};
    KELVRA_DRIVER_SETTERS(X)
#undef X
};

struct DeviceListOperations : OperationList {
#define X(name, parameters) OperationFor<Status parameters> name{*this, #name};
    KELVRA_DEVICE_LIST_FUNCTIONS(X)
#undef X
};
// NOLINTEND(readability-identifier-naming,bugprone-macro-parentheses)

}  // namespace kelvra::driver
