// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/device_list.h"

#include <gtest/gtest.h>

#include "support/fake_driver.h"

namespace kelvra::driver {

class DeviceListTest : public testing::Test {
protected:
    DeviceListTest() {
        test::FakeDriver::PutInto(operations_, test::FakeDriver::DeviceListFunctions());
        table_.Resize(8);
    }
    // Devices at every place whose letter is not a point.
    void Build(const std::string& places) {
        driver_.devices.clear();
        for (const char place : places)
            driver_.devices.push_back({"", "PS-101", std::string(1, place), place == '.' ? 0 : 1});
        catalogue_.BuildDeviceList(table_);
    }
    // The serial numbers of the list, a point for an empty element.
    std::string Listed() const {
        std::string serials;
        for (const auto& entry : catalogue_.deviceList)
            serials += entry.resourceName.empty() ? "." : entry.serial;
        return serials;
    }

    test::FakeDriver driver_;
    DeviceListOperations operations_;
    sensors::SensorTable table_;
    DeviceCatalogue catalogue_{operations_};
};

TEST_F(DeviceListTest, ReachesToItsLastConnectedDeviceAndNotAbove256) {
    const std::string far(255, '.');
    const struct {
        std::string places, listed;
        int connected, asked;
    } cases[] = {
        {"", ".", 0, 2},
        {"a.c", "a.c", 2, 3},
        {"ab...", "ab", 2, 5},
        {far + "z", far + "z", 1, 256},
        {far + "yz", far + "y", 1, 256},
    };
    for (const auto& [places, listed, connected, asked] : cases) {
        driver_.count.clear();
        Build(places);
        EXPECT_EQ(Listed(), listed);
        EXPECT_EQ(catalogue_.Connected(), connected) << places;
        EXPECT_EQ(driver_.Count("TeskGetDeviceInfo"), asked) << places;
        EXPECT_EQ(table_.scaling.size(), static_cast<std::size_t>(asked) + 1) << places;
    }
}

TEST_F(DeviceListTest, TextsEndInsideTheirBuffers) {
    const std::string full(128, 'n');
    driver_.devices = {{full, "PS-101", "5"}, {"short", "", std::string(200, '7')}};
    for (const bool terminated : {true, false}) {
        driver_.terminated = terminated;
        catalogue_.BuildDeviceList(table_);
        EXPECT_EQ(catalogue_.deviceList[0].name, full);
        EXPECT_EQ(catalogue_.deviceList[0].resourceName, "USB::0x1c5b::0x003::5");
        EXPECT_EQ(catalogue_.deviceList[1].name, "short");
        EXPECT_EQ(catalogue_.deviceList[1].serial, std::string(128, '7'));
    }
}

}  // namespace kelvra::driver
