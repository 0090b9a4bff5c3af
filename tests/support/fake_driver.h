// SPDX-License-Identifier: GPL-3.0-or-later
// Both driver libraries as C functions that note every call and answer as the test wants. The fake
// that was made last is the one that is called.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "driver/operations.h"
#include "support/fake_host.h"

namespace kelvra::test {

class FakeDriver {
public:
    FakeDriver();
    FakeDriver(const FakeDriver&) = delete;
    FakeDriver& operator=(const FakeDriver&) = delete;

    // The functions by name, as a library exports them; or put in place of a loaded one's.
    static FunctionTable InstrumentFunctions();
    static FunctionTable DeviceListFunctions();
    static void PutInto(driver::OperationList& operations, const FunctionTable& functions);

    // "psdrv_avg_setCount(12, 1, 4)": what was given, without what is given back.
    std::vector<std::string> calls;
    std::map<std::string, int> count;  // by name
    int Count(const std::string& name) const { return count.contains(name) ? count.at(name) : 0; }

    // Status of the n-th call of a function, from 1. Outputs are written even then.
    std::function<driver::Status(std::string_view name, int n)> status;
    std::function<void(std::string_view name)> onCall;

    driver::Handle handle = 12;
    std::string message = "bad value";
    std::string query = "queue empty";
    bool terminated = true;                     // texts end with a NUL
    std::function<bool(int channel)> complete;  // a measurement, zeroing; nothing: at once
    double reading = 0.001;                     // W
    std::int32_t averagingCount = 4;
    std::vector<std::string> infos;
    std::vector<double> array;               // W
    std::optional<std::int32_t> arrayCount;  // as reported, if it is not the true one

    struct Device {
        std::string name, type, serial;
        std::int32_t connected = 1;
    };
    std::vector<Device> devices;
    std::optional<std::int32_t> listLength;  // as reported, if it is not the true one
};

}  // namespace kelvra::test
