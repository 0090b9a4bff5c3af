// SPDX-License-Identifier: GPL-3.0-or-later
// Loads the two libraries the way that Kelvra does.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "status.h"
#include "support/temp_folder.h"

namespace kelvra::virtual_sensors {
namespace {

constexpr const char* ResourceA = "USB::0xAAd::0X003::A";

constexpr int32_t Code(Status status) {
    return static_cast<int32_t>(status);
}

class LibrariesTest : public testing::Test {
protected:
    // One sensor A at 0 dBm, and what the rest says.
    void Load(const std::string& rest) {
        folder_.Put("bench.scenario",
                    "time polls 1 ms lock 1 s\nduration 0\nsource g 0 dBm\n"
                    "sensor PS-101 A\nsees g 0 dB\n" +
                        rest);
        setenv("KELVRA_BENCH", folder_.Path("bench.scenario").c_str(), 1);
        driver_ = dlopen(LIBRARY_FOLDER "/libpsdrv_32.so", RTLD_NOW | RTLD_LOCAL);
        list_ = dlopen(LIBRARY_FOLDER "/libTeskControl2.so", RTLD_NOW | RTLD_LOCAL);
        ASSERT_TRUE(driver_ != nullptr && list_ != nullptr);
    }
    void TearDown() override {
        for (void* library : {driver_, list_})
            if (library != nullptr) dlclose(library);
    }

    template <class... Arguments>
    int32_t Call(const std::string& name, Arguments... arguments) const {
        void* function = dlsym(name.starts_with("psdrv") ? driver_ : list_, name.c_str());
        EXPECT_NE(function, nullptr) << name;
        if (function == nullptr) return -1;
        return reinterpret_cast<int32_t (*)(Arguments...)>(function)(arguments...);
    }

    uint32_t Init() const {
        uint32_t handle = 0;
        EXPECT_EQ(Call("psdrv_init", ResourceA, 1, 1, &handle), 0);
        return handle;
    }
    std::string Query(Status expected) const {
        std::array<char, 256> text{};
        int32_t code = 0;
        EXPECT_EQ(Call("psdrv_error_query", uint32_t{0}, &code, text.data()), 0);
        EXPECT_EQ(code, Code(expected));
        return text.data();
    }

    test::TempFolder folder_;
    void* driver_ = nullptr;
    void* list_ = nullptr;
};

TEST_F(LibrariesTest, GiveAnArrayNoLongerThanTheCallersAndNothingAfterTheClose) {
    Load("");
    const uint32_t h = Init();
    Call("psdrv_chan_mode", h, 1, 4);
    Call("psdrv_scope_setPoints", h, 1, 312);
    Call("psdrv_chans_initiate", h);
    for (const int32_t size : {1024, 100}) {
        std::vector<double> values(static_cast<std::size_t>(size));
        int32_t count = 0;
        EXPECT_EQ(Call("psdrv_meass_fetchBufferMeasurement", h, 1, size, values.data(), &count), 0);
        EXPECT_EQ(count, std::min(size, 312));
        EXPECT_DOUBLE_EQ(values[99], 1e-3);
    }
    EXPECT_EQ(Call("psdrv_close", h), 0);
    EXPECT_EQ(Call("psdrv_chans_initiate", h), Code(Status::BadHandle));
}

TEST_F(LibrariesTest, RefuseResourcesThatNameNoSensor) {
    Load("sensor PS-102 B\nunplugged\n");
    const std::string endless(600, 'x');
    const struct {
        const char* resource;
        Status status;
    } cases[] = {
        {"USB::0x1::0x003::A", Status::Ok},
        {"USB::0x1::0x16::B", Status::NotConnected},
        {"USB::0x1::0x016::A", Status::BadResource},
        {"USB::0x1::0xfffffffff::A", Status::BadResource},
        {endless.c_str(), Status::BadResource},
        {nullptr, Status::BadResource},
    };
    for (const auto& [resource, status] : cases) {
        uint32_t handle = 0;
        EXPECT_EQ(Call("psdrv_init", resource, 1, 1, &handle), Code(status));
        EXPECT_EQ(handle != 0, status == Status::Ok);
    }
}

TEST_F(LibrariesTest, RefuseSettingsAndSayWhyOnce) {
    Load("sensor PS-102 B\n");
    const uint32_t h = Init();
    EXPECT_EQ(Call("psdrv_AddSensor", h, 2, "USB::0x1::0x016::B", 1, 1), 0);
    EXPECT_EQ(Call("psdrv_AddSensor", h, 3, ResourceA, 1, 1), Code(Status::SensorInUse));
    EXPECT_EQ(Query(Status::SensorInUse), "psdrv_AddSensor, channel 3: by channel 1");
    EXPECT_EQ(Call("psdrv_avg_setCount", h, 1, 0), Code(Status::ValueOutOfRange));
    EXPECT_EQ(Query(Status::ValueOutOfRange),
              "psdrv_avg_setCount, channel 1: 0 is not within 1 to 65536");
    EXPECT_EQ(Query(Status::Ok), "No error");
    EXPECT_EQ(Call("psdrv_chan_mode", h, 2, 2), Code(Status::ModeNotOffered));
    EXPECT_EQ(Query(Status::ModeNotOffered), "psdrv_chan_mode, channel 2: PS-102");
    EXPECT_EQ(Call("psdrv_trigger_setLevel", h, 1, 1e-11), Code(Status::LevelOutOfRange));
    EXPECT_EQ(Query(Status::LevelOutOfRange),
              "psdrv_trigger_setLevel, channel 1: -80 dBm is not within -67 to 23 dBm");
}

TEST_F(LibrariesTest, AgreeOnWhatIsConnected) {
    Load("at call 2 of psdrv_chans_initiate unplug A\nat 4 s plug A\n");
    const uint32_t h = Init();
    EXPECT_EQ(Call("psdrv_chans_initiate", h), 0);
    EXPECT_EQ(Call("psdrv_chans_initiate", h), Code(Status::NotConnected));
    for (int second = 1; second <= 4; ++second) {
        std::array<std::array<char, 128>, 3> texts{};
        int32_t connected = -1;
        Call("TeskLockDeviceList");
        Call("TeskGetDeviceInfo", 0, texts[0].data(), texts[1].data(), texts[2].data(), &connected);
        EXPECT_EQ(connected, second == 4) << second;
    }
    EXPECT_EQ(Call("psdrv_chan_reset", Init(), 1), 0);
}

}  // namespace
}  // namespace kelvra::virtual_sensors
