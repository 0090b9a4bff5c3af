// SPDX-License-Identifier: GPL-3.0-or-later
#include "driver/device_list.h"

#include <algorithm>

#include "driver/catalogue.h"
#include "driver/text_buffer.h"

namespace kelvra::driver {

namespace {

constexpr std::int32_t MostEntries = 256;
// Even if a library reports an empty list, this many entries are read.
constexpr std::int32_t EntriesOfEmptyList = 2;

}  // namespace

void DeviceCatalogue::BuildDeviceList(sensors::SensorTable& table) {
    deviceList.assign(1, {});
    operations_.TeskLockDeviceList();
    std::int32_t length = 0;
    operations_.TeskGetDeviceListLength(&length);
    length = std::clamp(length, 0, MostEntries);
    if (length == 0) length = EntriesOfEmptyList;
    table.ResizeScaling(length + 1);
    for (int index = 0; index < length; ++index) ReadEntry(index);

    const int connected = Connected();
    if (connected > 0 && connected < lastConnected_) table.deviceTableChanged = true;
    lastConnected_ = connected;
}

void DeviceCatalogue::ReadEntry(int index) {
    DeviceBuffer name;
    DeviceBuffer type;
    DeviceBuffer serial;
    std::int32_t connected = 0;
    operations_.TeskGetDeviceInfo(index, name.Data(), type.Data(), serial.Data(), &connected);
    if (connected <= 0) return;
    deviceList.resize(static_cast<std::size_t>(index) + 1);
    deviceList.back() = {ResourceDescriptor(type.Text(), serial.Text()), type.Text(), serial.Text(),
                         name.Text()};
}

int DeviceCatalogue::Connected() const {
    return static_cast<int>(
        std::count_if(deviceList.begin(), deviceList.end(),
                      [](const DeviceListEntry& entry) { return !entry.resourceName.empty(); }));
}

}  // namespace kelvra::driver
