// SPDX-License-Identifier: GPL-3.0-or-later
// Loads the two libraries the way that Kelvra does.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "operations.h"
#include "status.h"
#include "support/temp_folder.h"

namespace kelvra::virtual_sensors {
namespace {

constexpr const char* OneAtZeroDbm =
    "time polls 1 ms lock 1 s\nduration 0\nsource g 0 dBm\nsensor PS-101 A\nsees g 0 dB\n";
constexpr const char* ResourceA = "USB::0xAAd::0X003::A";

class Libraries {
public:
    explicit Libraries(const std::string& scenario, const std::string& folder = LIBRARY_FOLDER) {
        folder_.Put("bench.scenario", scenario);
        setenv("KELVRA_BENCH", folder_.Path("bench.scenario").c_str(), 1);
        driver_ = dlopen((folder + "/libpsdrv_32.so").c_str(), RTLD_NOW | RTLD_LOCAL);
        list_ = dlopen((folder + "/libTeskControl2.so").c_str(), RTLD_NOW | RTLD_LOCAL);
    }
    ~Libraries() {
        if (driver_ != nullptr) dlclose(driver_);
        if (list_ != nullptr) dlclose(list_);
    }
    Libraries(const Libraries&) = delete;
    Libraries& operator=(const Libraries&) = delete;

    void* Find(std::string_view name) const {
        void* library = name.substr(0, 5) == "psdrv" ? driver_ : list_;
        return library == nullptr ? nullptr : dlsym(library, std::string(name).c_str());
    }

    template <class... Arguments>
    int32_t Call(std::string_view name, Arguments... arguments) const {
        void* function = Find(name);
        EXPECT_NE(function, nullptr) << name;
        if (function == nullptr) return -1;
        return reinterpret_cast<int32_t (*)(Arguments...)>(function)(arguments...);
    }

    uint32_t Init(const char* resource = ResourceA) const {
        uint32_t handle = 0;
        EXPECT_EQ(Call("psdrv_init", resource, 1, 1, &handle), 0);
        return handle;
    }

    std::string Message(int32_t status) const {
        std::array<char, 256> text{};
        EXPECT_EQ(Call("psdrv_error_message", uint32_t{0}, status, text.data()), 0);
        return text.data();
    }

    std::string Query(Status expected) const {
        std::array<char, 256> text{};
        int32_t code = 0;
        EXPECT_EQ(Call("psdrv_error_query", uint32_t{0}, &code, text.data()), 0);
        EXPECT_EQ(code, static_cast<int32_t>(expected));
        return text.data();
    }

    // What the list says of each index.
    std::vector<std::string> List() const {
        int32_t length = 0;
        Call("TeskLockDeviceList");
        Call("TeskGetDeviceListLength", &length);
        std::vector<std::string> lines;
        for (int32_t i = 0; i < length; ++i) {
            std::array<std::array<char, 128>, 3> texts{};
            int32_t connected = 0;
            Call("TeskGetDeviceInfo", i, texts[0].data(), texts[1].data(), texts[2].data(),
                 &connected);
            lines.push_back(std::string(texts[0].data()) + ';' + texts[1].data() + ';' +
                            texts[2].data() + ';' + std::to_string(connected));
        }
        return lines;
    }

private:
    test::TempFolder folder_;
    void* driver_ = nullptr;
    void* list_ = nullptr;
};

constexpr int32_t Code(Status status) {
    return static_cast<int32_t>(status);
}

TEST(Libraries, ExportEveryFunction) {
    const Libraries libraries("");
    for (std::size_t i = 0; i < OperationCount; ++i) {
        const std::string_view name = NameOf(static_cast<Operation>(i));
        EXPECT_NE(libraries.Find(name), nullptr) << name;
    }
}

TEST(Libraries, ReadAPowerFromInitToClose) {
    const Libraries libraries(OneAtZeroDbm);
    const uint32_t h = libraries.Init();
    ASSERT_NE(h, 0U);
    double value = 0;
    EXPECT_EQ(libraries.Call("psdrv_meass_fetchMeasurement", h, 1, &value), Code(Status::NoResult));
    EXPECT_EQ(libraries.Call("psdrv_chans_initiate", h), 0);
    uint16_t complete = 0;
    libraries.Call("psdrv_chan_isMeasurementComplete", h, 1, &complete);
    EXPECT_EQ(complete, 1);
    EXPECT_EQ(libraries.Call("psdrv_meass_fetchMeasurement", h, 1, &value), 0);
    EXPECT_DOUBLE_EQ(value, 1e-3);
    EXPECT_EQ(libraries.Call("psdrv_close", h), 0);
    EXPECT_EQ(libraries.Call("psdrv_chans_initiate", h), Code(Status::BadHandle));
    EXPECT_NE(libraries.Message(Code(Status::BadHandle)).find("Parameter 1 out of range"),
              std::string::npos);
}

TEST(Libraries, GiveAnArrayNoLongerThanTheCallers) {
    const Libraries libraries(OneAtZeroDbm);
    const uint32_t h = libraries.Init();
    libraries.Call("psdrv_chan_mode", h, 1, 4);
    libraries.Call("psdrv_scope_setPoints", h, 1, 312);
    libraries.Call("psdrv_chans_initiate", h);
    for (const int32_t size : {1024, 100}) {
        std::vector<double> values(static_cast<std::size_t>(size));
        int32_t count = 0;
        EXPECT_EQ(
            libraries.Call("psdrv_meass_fetchBufferMeasurement", h, 1, size, values.data(), &count),
            0);
        EXPECT_EQ(count, std::min(size, 312));
        EXPECT_DOUBLE_EQ(values[99], 1e-3);
    }
}

TEST(Libraries, RefuseResourcesThatNameNoSensor) {
    const Libraries libraries(std::string(OneAtZeroDbm) + "sensor PS-102 B\nunplugged\n");
    const std::string endless(600, 'x');
    const struct {
        const char* resource;
        Status status;
    } cases[] = {
        {"USB::0x1::0x003::A", Status::Ok},
        {"USB::0x1::0x16::B", Status::NotConnected},
        {"USB::0x1::0x016::A", Status::BadResource},
        {"USB::0x1::0x003::", Status::BadResource},
        {"USB::0x1::003::A", Status::BadResource},
        {"USB::0x1::0xfffffffff::A", Status::BadResource},
        {endless.c_str(), Status::BadResource},
        {nullptr, Status::BadResource},
    };
    for (const auto& [resource, status] : cases) {
        uint32_t handle = 0;
        EXPECT_EQ(libraries.Call("psdrv_init", resource, 1, 1, &handle), Code(status));
        EXPECT_EQ(handle != 0, status == Status::Ok);
    }
}

TEST(Libraries, RefuseSettingsAndSayWhyOnce) {
    const Libraries libraries(std::string(OneAtZeroDbm) + "sensor PS-102 B\n");
    const uint32_t h = libraries.Init();
    EXPECT_EQ(libraries.Call("psdrv_AddSensor", h, 2, "USB::0x1::0x016::B", 1, 1), 0);
    EXPECT_EQ(libraries.Call("psdrv_AddSensor", h, 3, ResourceA, 1, 1), Code(Status::SensorInUse));
    EXPECT_EQ(libraries.Query(Status::SensorInUse), "psdrv_AddSensor, channel 3: by channel 1");
    EXPECT_EQ(libraries.Call("psdrv_avg_setCount", h, 1, 0), Code(Status::ValueOutOfRange));
    EXPECT_EQ(libraries.Query(Status::ValueOutOfRange),
              "psdrv_avg_setCount, channel 1: 0 is not within 1 to 65536");
    EXPECT_EQ(libraries.Query(Status::Ok), "No error");
    EXPECT_EQ(libraries.Call("psdrv_chan_mode", h, 1, 2), 0);
    EXPECT_EQ(libraries.Call("psdrv_chan_mode", h, 2, 2), Code(Status::ModeNotOffered));
}

TEST(Libraries, ShareTheirSensors) {
    const Libraries libraries(std::string(OneAtZeroDbm) +
                              "name left\nindex 2\nat call 2 of psdrv_chans_initiate unplug A\n"
                              "at 5 s plug A\n");
    const std::string there = "left;PS-101;A;1";
    EXPECT_EQ(libraries.List(), (std::vector<std::string>{";;;0", ";;;0", there}));
    const uint32_t h = libraries.Init();
    EXPECT_EQ(libraries.Call("psdrv_chans_initiate", h), 0);
    EXPECT_EQ(libraries.Call("psdrv_chans_initiate", h), Code(Status::NotConnected));
    for (int look = 2; look < 5; ++look) EXPECT_EQ(libraries.List().at(2), "left;PS-101;A;0");
    EXPECT_EQ(libraries.List().at(2), there);
    EXPECT_EQ(libraries.Call("psdrv_chan_reset", h, 1), Code(Status::NotConnected));
    EXPECT_EQ(libraries.Call("psdrv_chan_reset", libraries.Init(), 1), 0);
}

}  // namespace
}  // namespace kelvra::virtual_sensors
