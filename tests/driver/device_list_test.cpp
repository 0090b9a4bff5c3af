// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/device_list.h"

#include <gtest/gtest.h>

#include "driver/catalogue.h"
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
        for (const auto& entry : catalogue_.DeviceList)
            serials += entry.ResourceName.empty() ? "." : entry.Serial;
        return serials;
    }

    test::FakeDriver driver_;
    DeviceListOperations operations_;
    sensors::SensorTable table_;
    DeviceCatalogue catalogue_{operations_};
};

TEST_F(DeviceListTest, ReachesToItsLastConnectedDevice) {
    const std::string hundred(100, 'x');
    const struct {
        std::string places, listed;
        int connected;
        int asked;
    } cases[] = {
        {"", ".", 0, 2},
        {"a", "a", 1, 1},
        {"..", ".", 0, 2},
        {"a.c", "a.c", 2, 3},
        {".b", ".b", 1, 2},
        {"ab...", "ab", 2, 5},
        {hundred, hundred, 100, 100},
        {std::string(255, '.') + "z", std::string(255, '.') + "z", 1, 256},
    };
    for (const auto& c : cases) {
        driver_.count.clear();
        Build(c.places);
        EXPECT_EQ(Listed(), c.listed);
        EXPECT_EQ(catalogue_.Connected(), c.connected) << c.places;
        EXPECT_EQ(driver_.Count("TeskGetDeviceInfo"), c.asked) << c.places;
        EXPECT_EQ(table_.Scaling.size(), static_cast<std::size_t>(c.asked) + 1) << c.places;
    }
}

TEST_F(DeviceListTest, IsNotBelievedBelowNothingNorAbove256) {
    const struct {
        std::int32_t length;
        int asked;
    } cases[] = {
        {-1, 2}, {INT32_MIN, 2}, {0, 2}, {300, 256}, {1000, 256}, {INT32_MAX, 256},
    };
    for (const auto& c : cases) {
        driver_.count.clear();
        driver_.listLength = c.length;
        Build(std::string(300, 'x'));
        EXPECT_EQ(driver_.Count("TeskGetDeviceInfo"), c.asked) << c.length;
        EXPECT_EQ(catalogue_.Connected(), c.asked) << c.length;
    }
}

TEST_F(DeviceListTest, TextsEndInsideTheirBuffers) {
    const std::string full(128, 'n');
    driver_.devices = {{full, "PS-101", "5"}, {"short", "", std::string(200, '7')}};
    for (const bool terminated : {true, false}) {
        driver_.terminated = terminated;
        catalogue_.BuildDeviceList(table_);
        EXPECT_EQ(catalogue_.DeviceList[0].Name, full);
        EXPECT_EQ(catalogue_.DeviceList[0].ResourceName, "USB::0x1c5b::0x003::5");
        EXPECT_EQ(catalogue_.DeviceList[1].Name, "short");
        EXPECT_EQ(catalogue_.DeviceList[1].Serial, std::string(128, '7'));
    }
}

TEST_F(DeviceListTest, OnlyFewerConnectedSensorsChangeTheTable) {
    const struct {
        const char* places;
        bool changed;
    } steps[] = {
        {"ab", false},  {"ab", false}, {"a.c", false}, {"a", true},
        {"abc", false}, {"", false},   {"a", false},
    };
    for (const auto& step : steps) {
        table_.DeviceTableChanged = false;
        Build(step.places);
        EXPECT_EQ(table_.DeviceTableChanged, step.changed) << step.places;
        EXPECT_EQ(table_.SensorSlotCount, 8);
    }
}

TEST_F(DeviceListTest, WithoutALibraryNobodyIsThere) {
    test::FakeDriver::PutInto(operations_, {});
    Build("abc");
    EXPECT_EQ(Listed(), ".");
    catalogue_.Close();
    EXPECT_EQ(driver_.calls, std::vector<std::string>());
}

TEST(Catalogue, KnowsTheProductIdAndTheModesOfAModel) {
    using enum Capabilities;
    const struct {
        const char* type;
        const char* id;
        Capabilities capabilities;
    } models[] = {
        {"PS-101", "0x003", TimeResolving},
        {"PS-102", "0x016", AverageOnly},
        {"PS-103", "0x018", AverageOnly},
        {"PS-104", "0x021", AverageOnly},
        {"PS-105", "0x00c", TimeResolving},
        {"PS-106", "0x013", TimeResolving},
        {"PS-107", "0x014", TimeResolving},
        {"PS-108", "0x015", TimeResolving},
        {"PS-109", "0x023", AverageOnly},
        {"PS-110", "0x02c", Unknown},
        {"PS-111", "0x02d", AverageOnly},
        {"PS-112", "0x02e", AverageOnly},
        {"PS-113", "0x02f", AverageOnly},
        {"PS-114", "0x017", AverageOnly},
        {"PS-115", "0x019", AverageOnly},
        {"PS-116", "0x0b", Unknown},
        {"PS-117", "0x01a", Unknown},
        {"PS-118", "0x004", AverageOnly},
        {"PS-119", "0x004", Unknown},
        {"ps-101", "0x004", Unknown},
        {"", "0x004", Unknown},
    };
    for (const auto& model : models) {
        EXPECT_EQ(ProductIdOf(model.type), model.id) << model.type;
        EXPECT_EQ(CapabilitiesOf(std::string(model.type) + ";1"), model.capabilities) << model.type;
    }
    EXPECT_EQ(ModesOf(TimeResolving).size(), 4U);
    EXPECT_EQ(ModesOf(AverageOnly).size(), 1U);
    EXPECT_EQ(ModesOf(Unknown).size(), 0U);
}

}  // namespace kelvra::driver
