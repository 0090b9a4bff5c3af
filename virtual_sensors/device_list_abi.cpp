// SPDX-License-Identifier: GPL-3.0-or-later
// The exported functions of the device list, Tesk*.
#include <dlfcn.h>

#include <memory>
#include <string>

#include "call.h"
#include "shared_bench.h"

namespace kelvra::virtual_sensors {
namespace {

constexpr std::size_t TextSize = 128;

// The bench of the driver library in this library's folder, or a bench of its own if there is none.
// Keeps the driver library loaded as long as this library is.
class BenchAccess {
public:
    BenchAccess() {
        library_.reset(dlopen(DriverPath().c_str(), RTLD_NOW | RTLD_LOCAL));
        void* function = library_ ? dlsym(library_.get(), SharedBenchName) : nullptr;
        if (function != nullptr) bench_ = reinterpret_cast<SharedBenchFunction>(function)();
        if (bench_ != nullptr) return;
        own_ = std::make_unique<VirtualBench>(ScenarioFromEnvironment());
        bench_ = own_.get();
    }

    VirtualBench& Bench() { return *bench_; }

private:
    static std::string DriverPath() {
        Dl_info info{};
        if (dladdr(reinterpret_cast<void*>(&TheBench), &info) == 0) return DriverFileName;
        const std::string self = info.dli_fname;
        return self.substr(0, self.rfind('/') + 1) + DriverFileName;
    }

    struct Unload {
        void operator()(void* library) const { dlclose(library); }
    };

    std::unique_ptr<void, Unload> library_;
    std::unique_ptr<VirtualBench> own_;
    VirtualBench* bench_ = nullptr;
};

}  // namespace

VirtualBench& TheBench() {
    static BenchAccess access;
    return access.Bench();
}

// NOLINTBEGIN(readability-identifier-naming): the names are the exported functions' own

#define X(name, parameters) KELVRA_VIRTUAL_EXPORT int32_t name parameters;
KELVRA_DEVICE_LIST_FUNCTIONS(X)
#undef X

int32_t TeskLockDeviceList() {
    return Call(Operation::TeskLockDeviceList, 0, [](VirtualBench& bench, const Twist&) {
        bench.LockList();
        return Outcome{};
    });
}

int32_t TeskGetDeviceListLength(int32_t* count) {
    return Call(Operation::TeskGetDeviceListLength, 0,
                [&](VirtualBench& bench, const Twist& twist) {
                    return PutWhole(count, static_cast<int32_t>(bench.List().size()), twist);
                });
}

// An index without a sensor gives empty texts and "not connected".
int32_t TeskGetDeviceInfo(int32_t index, char* name, char* type, char* serial, int32_t* connected) {
    const int64_t channel = int64_t{index} + 1;
    return Call(
        Operation::TeskGetDeviceInfo, channel, [&](VirtualBench& bench, const Twist& twist) {
            const auto& list = bench.List();
            const bool listed = index >= 0 && static_cast<std::size_t>(index) < list.size();
            const auto entry =
                listed ? list[static_cast<std::size_t>(index)] : VirtualBench::ListEntry{};
            const SensorPlan plan = entry.sensor == nullptr ? SensorPlan{} : *entry.sensor;
            const Outcome outcomes[] = {PutText(name, TextSize, plan.name, twist),
                                        PutText(type, TextSize, plan.type, twist),
                                        PutText(serial, TextSize, plan.serial, twist),
                                        PutWhole(connected, int32_t{entry.connected}, twist)};
            for (const Outcome& outcome : outcomes) {
                if (outcome.status != Status::Ok) return outcome;
            }
            return Outcome{};
        });
}

int32_t TeskCloseDriver() {
    return Call(Operation::TeskCloseDriver, 0, [](VirtualBench& bench, const Twist&) {
        bench.ReleaseList();
        return Outcome{};
    });
}

// NOLINTEND(readability-identifier-naming)

}  // namespace kelvra::virtual_sensors
