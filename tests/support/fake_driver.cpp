// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fake_driver.h"

#include <algorithm>

#include "util/number_text.h"

namespace kelvra::test {

namespace {

using driver::Channel;
using driver::DeviceListOperations;
using driver::Handle;
using driver::InstrumentOperations;
using driver::Status;
using driver::Switch;
using Int = std::int32_t;

// C functions have no context of their own.
FakeDriver* current = nullptr;

constexpr std::size_t DriverText = 256;
constexpr std::size_t DeviceText = 128;

void WriteText(char* buffer, std::size_t size, const std::string& text) {
    std::copy_n(text.begin(), std::min(size, text.size()), buffer);
    if (current->terminated && text.size() < size) buffer[text.size()] = '\0';
}

template <class Argument>
void Note(std::string& list, Argument argument) {
    constexpr bool isText = std::is_same_v<Argument, const char*>;
    if constexpr (isText || !std::is_pointer_v<Argument>) list += list.empty() ? "" : ", ";
    if constexpr (isText)
        list += argument;
    else if constexpr (!std::is_pointer_v<Argument>)
        list += util::ShortestNumberText(static_cast<double>(argument));
}

// What the functions give back, chosen by their parameters.
struct Answers {
    template <class... Arguments>
    static void Give(Arguments...) {}
    static void Give(const char*, Int, Int, Handle* handle) { *handle = current->handle; }
    static void Give(Handle, Status, char* text) { WriteText(text, DriverText, current->message); }
    static void Give(Handle, Int* code, char* text) {
        *code = 1;
        WriteText(text, DriverText, current->query);
    }
    static void Give(Handle, Channel channel, Switch* complete) {
        *complete = !current->complete || current->complete(channel) ? 1 : 0;
    }
    static void Give(Handle, Channel, double* reading) { *reading = current->reading; }
    static void Give(Handle, Channel, Int* count) { *count = current->averagingCount; }
    static void Give(Handle, Channel, Int size, double* values, Int* count) {
        const auto& array = current->array;
        std::copy_n(array.begin(), std::min(array.size(), static_cast<std::size_t>(size)), values);
        *count = current->arrayCount.value_or(static_cast<Int>(array.size()));
    }
    static void Give(Handle, Channel, Int entry, Int, char* text) {
        if (static_cast<std::size_t>(entry) < current->infos.size())
            WriteText(text, DriverText, current->infos[static_cast<std::size_t>(entry)]);
    }
    static void Give(Int* length) {
        *length = current->listLength.value_or(static_cast<Int>(current->devices.size()));
    }
    static void Give(Int index, char* name, char* type, char* serial, Int* connected) {
        if (static_cast<std::size_t>(index) >= current->devices.size()) return;
        const auto& device = current->devices[static_cast<std::size_t>(index)];
        WriteText(name, DeviceText, device.name);
        WriteText(type, DeviceText, device.type);
        WriteText(serial, DeviceText, device.serial);
        *connected = device.connected;
    }
};

template <auto Member>
struct Function;

template <class List, class... Arguments, driver::Operation<Arguments...> List::*Member>
struct Function<Member> {
    static inline const char* name = nullptr;

    static Status KELVRA_DRIVER_CALL Call(Arguments... arguments) {
        std::string list;
        (Note(list, arguments), ...);
        current->calls.push_back(std::string(name) + "(" + list + ")");
        const int n = ++current->count[name];
        if (current->onCall) current->onCall(name);
        Answers::Give(arguments...);
        return current->status ? current->status(name, n) : 0;
    }
    static void* Named(const char* itsName) {
        name = itsName;
        return reinterpret_cast<void*>(&Call);
    }
};

}  // namespace

FunctionTable FakeDriver::InstrumentFunctions() {
    return {
#define X(name, ...) {#name, Function<&InstrumentOperations::name>::Named(#name)},
        KELVRA_DRIVER_FUNCTIONS(X) KELVRA_DRIVER_SETTERS(X)
#undef X
    };
}

FunctionTable FakeDriver::DeviceListFunctions() {
    return {
#define X(name, ...) {#name, Function<&DeviceListOperations::name>::Named(#name)},
        KELVRA_DEVICE_LIST_FUNCTIONS(X)
#undef X
    };
}

void FakeDriver::PutInto(driver::OperationList& operations, const FunctionTable& functions) {
    operations.libraryFile = "libfake.so";
    operations.libraryLoaded = true;
    for (driver::OperationBase* operation : operations.all) {
        const auto found = functions.find(operation->name);
        operation->address = found == functions.end() ? nullptr : found->second;
    }
}

FakeDriver::FakeDriver() {
    current = this;
}

}  // namespace kelvra::test
